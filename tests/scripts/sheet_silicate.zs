# A monoclinic C lattice with many sites: cell, unit cell content, basal reflections, triple table
answer "data/ZOLDATA/Muscovite.cry"
click Main1.DATA_LOAD
print Main1.Label16
print Main1.Text12
print Main1.Text14
print Main1.Label20
set Main1.Text15 3
set Main1.Text18 0
set Main1.Text19 0
click Main1.Command6
print Main1.List2
set Main1.Text18 ""
set Main1.Text19 ""
click Main1.Command6
print Main1.Label26
print PATTERN3.Label8
print PATTERN3.ProgressBar1
# row ((1-1)*14 + 5-1)*14 + 9: reflections 1, 5 and 9
print Module1.RefI(1)
print PATTERN3.TripleHKL(65,0)
print PATTERN3.TripleHKL(65,1)
print PATTERN3.TripleHKL(65,2)
print PATTERN3.TripleHKL(65,3)
print PATTERN3.TripleHKL(65,4)
print PATTERN3.TripleHKL(65,5)
print PATTERN3.TripleHKL(65,6)
print PATTERN3.TripleHKL(65,7)
print PATTERN3.TripleHKL(65,8)
print PATTERN3.TripleAngle(65,0)
print PATTERN3.TripleAngle(65,1)
print PATTERN3.TripleAngle(65,2)
