# Copper at 200 kV: square roots of the intensities, the beam in the middle, dark rings on white.
choose Main1.Combo1 200
answer data/ZOLDATA/Copper.cry
click Main1.DATA_LOAD
click Main1.Command8              # "Electron Debye-ring"
click Dring.Check1
click Dring.Check2
click Dring.Check3
click Dring.Command1
print Dring.List1
export Dring.Picture1 figure-rings-profile.png
export Dring.Picture2 figure-rings.png
