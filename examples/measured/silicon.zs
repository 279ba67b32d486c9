# A measured pattern of silicon: three bands by hand, then without a hand, then the pattern centre.
show Main1
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click MAIN_MENU.Command3          # the analysis window
answer examples/measured/silicon.png
click PATTERN3.ImageLoad
click PATTERN3.ImageFlip          # the detector shows the screen from behind
set PATTERN3.Text3 44.9           # the published centre 0.512, 0.139, 0.502 as half opening and shifts
set PATTERN3.Text14 1.4
set PATTERN3.Text15 35.7
press PATTERN3.Picture1 40 376    # along the middle of three bands
move PATTERN3.Picture1 480 363
release PATTERN3.Picture1 480 363
press PATTERN3.Picture1 50 131
move PATTERN3.Picture1 430 375
release PATTERN3.Picture1 430 375
press PATTERN3.Picture1 60 419
move PATTERN3.Picture1 440 134
release PATTERN3.Picture1 440 134
click PATTERN3.Check1             # one of each set of equivalent solutions
click PATTERN3.Command1
echo "By hand:"
print PATTERN3.List1
click PATTERN3.AutomaticIndexing
click AutoIndex.CircleMask        # the screen is round
click AutoIndex.Index
echo "Without a hand, with the published centre:"
print AutoIndex.Status
click AutoIndex.RefineCentre
echo "With the centre refined:"
print AutoIndex.Status
print AutoIndex.CentreX
print AutoIndex.CentreY
print AutoIndex.CentreZ
print AutoIndex.SolutionsHeading
print AutoIndex.Solutions
