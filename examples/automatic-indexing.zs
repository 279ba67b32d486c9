# The simulated pattern of silicon indexed automatically, as in docs/user-guide/automatic-indexing.md.
show Main1
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click MAIN_MENU.Command3              # the analysis window
set PATTERN3.Text3 33                 # half angle of the picture, degrees
answer examples/silicon-pattern.bmp
click PATTERN3.ImageLoad
click PATTERN3.ImageFlip              # the detector shows the screen from behind
click PATTERN3.AutomaticIndexing      # the menu "Option", "Automatic indexing"
click AutoIndex.Index
echo "1. Solutions and bands"
print AutoIndex.Status
print AutoIndex.SolutionsHeading
print AutoIndex.Solutions
print AutoIndex.BandsHeading
print AutoIndex.Bands
echo "2. Families of planes"
print AutoIndex.FamiliesHeading
print AutoIndex.Families

set PATTERN3.Text3 32                 # one degree off
click AutoIndex.Index
echo "3. With a half angle of 32, and with the centre refined from there"
print AutoIndex.Status
click AutoIndex.RefineCentre
print AutoIndex.Status
print PATTERN3.Text3                  # half angle and shifts, degrees
print PATTERN3.Text14
print PATTERN3.Text15
set PATTERN3.Text3 33
set PATTERN3.Text14 0
set PATTERN3.Text15 0

answer data/ZOLDATA/Diamond.cry
click AutoIndex.AddCrystal
answer data/ZOLDATA/Quartz.cry
click AutoIndex.AddCrystal
click AutoIndex.Index
echo "4. Diamond and quartz tried too"
print AutoIndex.Solutions

click AutoIndex.Show                  # the simulation takes the first solution
echo "5. Axis in the simulation"
print Pattern2.Text3
print Pattern2.Text4
print Pattern2.Text5

click AutoIndex.TakeLines
click PATTERN3.Check1                 # one of each set of equivalent solutions
click PATTERN3.Command1
echo "6. Three bands as lines, matched by CALC"
print PATTERN3.List1

echo "7. The report"
click AutoIndex.CopyReport
