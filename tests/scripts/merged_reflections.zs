# Copper of a = 3.6148 merged: the multiplicities of fcc powder lines (8, 6, 12, 24) and absences of Fd-3m (200 and 222 of silicon: 2 0 0 never, 2 2 2 by its F alone); rutile by Abrahams and Bernstein (1971): Ti-O 1.9485 and 1.9800, O-Ti-O 81.21 and 98.79
set Main1.Text15 1.0
answer "data/ZOLDATA/Copper.cry"
click Main1.DATA_LOAD
table Main1.List2 "Merge equivalents" "Multiplicity"
set Main1.Text15 1.5
answer "data/ZOLDATA/Silicon.cry"
click Main1.DATA_LOAD
table Main1.List2 "Merge equivalents" "Systematic absences"
answer "data/ZOLDATA/Rutile.cry"
click Main1.DATA_LOAD
click Main1.Command11
click AtomDistance.BondsAndAngles
print Bonds.Status
table Bonds.Sites
table Bonds.BondList
print Bonds.Angles
echo a longest bond
set Bonds.Limit 1.96
click Bonds.Calc
table Bonds.Sites
echo what is no number is told
set Bonds.Limit -1
click Bonds.Calc
print Bonds.Status
print Bonds.Sites
set Bonds.Limit ""
set Bonds.Gap 1
click Bonds.Calc
table Bonds.Sites
