# The pattern was made for [0.25 0.48 0.84] (tools/make_example_pattern); its three strongest bands meet in one point.
show Main1
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click MAIN_MENU.Command3
set PATTERN3.Text3 33
answer examples/silicon-pattern.bmp
click PATTERN3.ImageLoad
click PATTERN3.ImageFlip
click PATTERN3.AutomaticIndexing
click AutoIndex.Index
click AutoIndex.TakeLines
click PATTERN3.Check1
click PATTERN3.Command1
print PATTERN3.List1
