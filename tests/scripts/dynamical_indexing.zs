# The shipped picture of silicon: the same orientation as by drawn bands, to a tenth of a degree, of higher correlation.
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
print AutoIndex.Solutions
click AutoIndex.Dynamical
click AutoIndex.Index
print AutoIndex.Status
print AutoIndex.Solutions
echo and as before without it
click AutoIndex.Dynamical
click AutoIndex.Index
print AutoIndex.Status
