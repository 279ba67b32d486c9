# A simulated Kikuchi pattern of silicon at 20 kV, from picture to orientation.
show Main1
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click MAIN_MENU.Command3          # the analysis window, with the camera parameters of the file
set PATTERN3.Text3 33             # half opening of the picture, degrees
answer examples/silicon-pattern.bmp
click PATTERN3.ImageLoad
click PATTERN3.ImageFlip          # the detector shows the screen from behind
press PATTERN3.Picture1 20 75     # along the middle of three bands
move PATTERN3.Picture1 490 293
release PATTERN3.Picture1 490 293
press PATTERN3.Picture1 60 490
move PATTERN3.Picture1 480 245
release PATTERN3.Picture1 480 245
press PATTERN3.Picture1 24 20
move PATTERN3.Picture1 259 490
release PATTERN3.Picture1 259 490
click PATTERN3.Check1             # one of each set of equivalent solutions
click PATTERN3.Command1
echo "Bands and solutions:"
print PATTERN3.Label1(0)
print PATTERN3.Label1(1)
print PATTERN3.Label1(2)
print PATTERN3.List1
select PATTERN3.List1 0
echo "In-plane rotation that each band asks for, degrees:"
print PATTERN3.Label1(0)
print PATTERN3.Label1(1)
print PATTERN3.Label1(2)
