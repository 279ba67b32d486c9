# A measured pattern of nickel whose pattern centre and orientation are published.
show Main1
answer examples/measured/Nickel.cry
click Main1.DATA_LOAD
click MAIN_MENU.Command3          # the analysis window
answer examples/measured/nickel.png
click PATTERN3.ImageLoad
click PATTERN3.ImageFlip          # the detector shows the screen from behind
set PATTERN3.Text3 44.95          # the published centre 0.42088, 0.21654, 0.50079 as half opening and shifts
set PATTERN3.Text14 -8.98
set PATTERN3.Text15 29.51
click PATTERN3.AutomaticIndexing
click AutoIndex.Index
echo "With the published centre:"
print AutoIndex.Status
print AutoIndex.SolutionsHeading
print AutoIndex.Solutions
click AutoIndex.RefineCentre
echo "With the centre refined:"
print AutoIndex.Status
print AutoIndex.CentreX
print AutoIndex.CentreY
print AutoIndex.CentreZ
print AutoIndex.Solutions
click AutoIndex.CopyReport
