# The shipped picture of silicon, drawn about [.25 .48 .84]: the same indices by both fits, the dynamical one closer. Lines of copper have no atoms to scatter.
show Main1
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click MAIN_MENU.Command3
set PATTERN3.Text3 33
answer examples/silicon-pattern.bmp
click PATTERN3.ImageLoad
click PATTERN3.ImageFlip
click PATTERN3.AutomaticIndexing
click AutoIndex.Index
print AutoIndex.Status
print AutoIndex.SolutionsHeading
click AutoIndex.Dynamical
click AutoIndex.Index
print AutoIndex.Status
print AutoIndex.SolutionsHeading
echo a crystal of observed lines keeps its drawn bands
answer data/ZOLDATA/CopperLines.cry
click AutoIndex.AddCrystal
click AutoIndex.Index
print AutoIndex.Status
echo and as before without it
click AutoIndex.Dynamical
click AutoIndex.Index
print AutoIndex.Status
