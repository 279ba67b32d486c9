# A rhombohedral lattice in hexagonal axes along c: the zero level with -h+k = 3n, the second with -h+k+2 = 3n; the glide takes the first away
set Main1.Text15 1.2
answer "data/ZOLDATA/Corundum.cry"
click Main1.DATA_LOAD
click Main1.Command9
click Pattern.Check3
set Pattern.Text5 1
set Pattern.Text1 0.6
click Pattern.Command8
print Main1.DisplayScale
print Pattern.Picture1
click Pattern.Command5
print Pattern.Picture1
click Pattern.Command5
print Pattern.Picture1
