# The measured pattern of silicon indexed without a hand: docs/user-guide/automatic-indexing.md tells the numbers.
show Main1
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click MAIN_MENU.Command3              # the analysis window, PATTERN3
set PATTERN3.Text3 33                 # half angle of the picture, degrees
answer examples/silicon-pattern.bmp
click PATTERN3.ImageLoad
click PATTERN3.ImageFlip              # the detector shows the screen from behind
click PATTERN3.AutomaticIndexing      # the menu "Option", "Automatic indexing"
print PATTERN3.Text5
print AutoIndex.BandCount
print AutoIndex.Families
click AutoIndex.Index
echo "Found:"
print AutoIndex.Status
print AutoIndex.SolutionsHeading
print AutoIndex.Solutions
print AutoIndex.BandsHeading
print AutoIndex.Bands
print AutoIndex.FamiliesHeading
print AutoIndex.Families
click AutoIndex.CopyReport
printer
click AutoIndex.RefineCentre
echo "Refined"
print AutoIndex.Status
print AutoIndex.Solutions
print PATTERN3.Text3
print PATTERN3.Text14
print PATTERN3.Text15
print AutoIndex.CentreX
print AutoIndex.CentreY
print AutoIndex.CentreZ
