# The steps of docs/user-guide/quick-start.md, from nothing to an indexed pattern. Pictures go into the current folder.
click MAIN_MENU.Command1
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
echo "1. Crystal: symbol, system, atoms in the cell, reflections"
print Main1.Label16
print Main1.Label17
print Main1.Label20
print Main1.Label26

choose Main1.Combo1 CuKa
click Main1.Command6
echo "2. Reflections with copper radiation"
print Main1.List2

click Main1.Command7
echo "3. Powder pattern"
print Xd.List1

choose Main1.Combo1 20
click Main1.Command6
click Main1.Command9
set Pattern.Text3 0
set Pattern.Text4 0
type Pattern.Text5 "1\r"
export Pattern.Picture1 quick-start-spots.png
click Main1.Command10
set Pattern2.Text3 0
set Pattern2.Text4 0
type Pattern2.Text5 "1\r"
export Pattern2.Picture1 quick-start-kikuchi.png

click MAIN_MENU.Command3
set PATTERN3.Text3 33
answer examples/silicon-pattern.bmp
click PATTERN3.ImageLoad
click PATTERN3.ImageFlip
press PATTERN3.Picture1 20 75
move PATTERN3.Picture1 490 293
release PATTERN3.Picture1 490 293
press PATTERN3.Picture1 60 490
move PATTERN3.Picture1 480 245
release PATTERN3.Picture1 480 245
press PATTERN3.Picture1 24 20
move PATTERN3.Picture1 259 490
release PATTERN3.Picture1 259 490
click PATTERN3.Check1
click PATTERN3.Command1
echo "4. The indexed pattern"
print PATTERN3.List1
select PATTERN3.List1 0
click Pattern2.ImageLoad
select PATTERN3.List1 0
print PATTERN3.Label1(0)
print PATTERN3.Label1(1)
print PATTERN3.Label1(2)
export PATTERN3.Picture1 quick-start-bands.png
export Pattern2.Picture1 quick-start-solution.png
