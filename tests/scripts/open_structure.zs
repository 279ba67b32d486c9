# Structure files: a question for the crystal and one for the origin, cancelled and answered; diamond has 8 atoms, d(111) = a / sqrt(3) = 2.0594 and no 222 but by the list; what is refused leaves the crystal
set Main1.Text15 1.5
answer tests/scripts/two_crystals.cif
cancel
click Main1.ImportStructure
print Module1.NAtom
answer tests/scripts/two_crystals.cif
answer second
cancel
click Main1.ImportStructure
print Module1.NAtom
answer tests/scripts/two_crystals.cif
answer 2
answer 2
click Main1.ImportStructure
print Main1.Label19
print Main1.List1
print Main1.List2
print Main1.Text17
caption Xd
echo refused
answer tests/scripts/two_crystals.cif
answer third
click Main1.ImportStructure
answer tests/scripts/open_structure.zs
click Main1.ImportStructure
answer /nowhere/x.cif
click Main1.ImportStructure
print Main1.Label16
print Module1.NCell
print Main1.Text17
echo observed lines alone can not be saved
answer tests/scripts/observed.cry
click Main1.DATA_LOAD
click Main1.ExportStructure
