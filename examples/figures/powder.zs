# Quartz with CuKa, 15 to 70 degrees.
choose Main1.Combo1 CuKa
answer data/ZOLDATA/Quartz.cry
click Main1.DATA_LOAD
click Main1.Command7              # "Powder XRD Pattern"
set Xd.Text1 15
set Xd.Text2 70
click Xd.Command1
print Xd.List1
export Xd.Picture1 figure-powder.png
