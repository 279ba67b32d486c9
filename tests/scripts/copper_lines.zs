# A crystal described by observed reflections: each form spreads over its equivalents
answer "data/ZOLDATA/CopperLines.cry"
click Main1.DATA_LOAD
print Main1.Label19
print Main1.Label31
print Main1.Label20
click Main1.Check1
click Main1.Check2
click Main1.Check3
set Main1.Text15 0.9
click Main1.Command6
print Main1.Label26
print Main1.List2
print PATTERN3.Label8
print PATTERN3.Text2
print Module1.RefH(1)
print Module1.RefI(1)
echo the table comes back with as many lines
click Main1.Command15
click InputJCPDS.Command1
print Main1.Label31
