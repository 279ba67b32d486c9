# Main1: radiation, space group, cell and lists. Wavelengths are sqrt(150/V) or tabulated; the reciprocal cell is
# worked out apart with vectors; the reflections of the cubic cell lie at d = a/sqrt(hh+kk+ll).
print Main1.Combo1
print Main1.Text15
print Main1.Text16
print Main1.Option1
print Main1.Option2
print Main1.Check1
print Main1.Check2
print Main1.Check3
print Main1.Combo2
print Main1.AxisSetting
choose Main1.Combo1 CuKa
print Main1.WaveLength
print Main1.Option1
print Main1.MassRatio
choose Main1.Combo1 5
print Main1.WaveLength
print Main1.Option2
print Pattern2.Text21
print PATTERN3.Text5
choose Main1.Combo1 MoKa
print Main1.Text16
print Main1.Option2
print PATTERN3.Text5
choose Main1.Combo1 15
print Main1.Text16
print Main1.MassRatio
choose Main1.Combo1 100
print Main1.Text16
print Main1.MassRatio
choose Main1.Combo1 120
print Main1.Text16
print Main1.MassRatio
choose Main1.Combo1 200
print Main1.Text16
print Main1.MassRatio
choose Main1.Combo1 300
print Main1.Text16
print Main1.MassRatio
choose Main1.Combo1 400
print Main1.Text16
print Main1.MassRatio
choose Main1.Combo1 1000
print Main1.Text16
print Main1.MassRatio
choose Main1.Combo1 1250
print Main1.Text16
print Main1.MassRatio
choose Main1.Combo1 30
print Main1.Text16
print Main1.MassRatio
set Main1.Text16 0.05
print Main1.WaveLength
echo the group is looked up at every key: P-1, F222, Fm3m, none
type Main1.Text7 2
print Main1.Label16
type Main1.Text7 2
print Main1.Label16
type Main1.Text7 5
print Main1.Label16
print Main1.Label17
print Main1.LatticeLetter
type Main1.Text7 0
print Main1.Label16
print Main1.Label17
print Main1.SGName
set Main1.Text7 0
print Main1.Label16
select Main1.List3 249
print Main1.Text7
print Main1.Label16
select Main1.List3 61
print Main1.Text7
print Main1.Label17
choose Main1.Combo2 bca
print Main1.AxisSetting
select Main1.Combo2 5
print Main1.AxisSetting
select Main1.Combo2 1
print Main1.AxisSetting
choose Main1.Combo2 abc
echo a triclinic cell, and its reciprocal one once it is complete
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
print Main1.Text8
set Main1.Text6 93
print Main1.Text8
print Main1.Text9
print Main1.Text10
print Main1.Text11
print Main1.Text12
print Main1.Text13
print Main1.Text14
echo what each system makes of the cell: 2, 14, 238 (no system that constrains), 62, 136, 167, 194, 225
echo 2
set Main1.Text7 2
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
set Main1.Text6 93
leave Main1.Text7
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
echo 14
set Main1.Text7 14
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
set Main1.Text6 93
leave Main1.Text7
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
echo 238
set Main1.Text7 238
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
set Main1.Text6 93
leave Main1.Text7
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
echo 62
set Main1.Text7 62
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
set Main1.Text6 93
leave Main1.Text7
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
echo 136
set Main1.Text7 136
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
set Main1.Text6 93
leave Main1.Text7
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
echo 167
set Main1.Text7 167
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
set Main1.Text6 93
leave Main1.Text7
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
echo 194
set Main1.Text7 194
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
set Main1.Text6 93
leave Main1.Text7
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
echo 225
set Main1.Text7 225
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 91
set Main1.Text5 92
set Main1.Text6 93
leave Main1.Text7
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
echo only edge a settles it for the numbers of the tables, and Enter in its box does
set Main1.Text7 249
set Main1.Text2 5
leave Main1.Text1
print Main1.Text2
leave Main1.Text7
print Main1.Text2
set Main1.Text7 221
set Main1.Text2 5
type Main1.Text1 "\r"
print Main1.Text2
type Main1.Text2 "\r"
print Main1.Text2
echo an element without factors empties the list
click Main1.Command1
type InputAtom.G "A\rXx\r1\r0\r0\r0\r\r"
click InputAtom.Command1
click Main1.Command6
print Main1.Label26
print Main1.List2
echo caesium chloride at 200 kV: Dmin is asked for until it is above 0; {100} {110}, with and without -h, k = 0, l = 1
click Main1.Command1
cell InputAtom.G 1 1
type InputAtom.G "\rCs\r\r\r\r\r\rB\rCl\r1\r.5\r.5\r.5\r"
click InputAtom.Command1
print Main1.Label19
print Main1.List1
choose Main1.Combo1 200
set Main1.Text15 0
answer -1
answer ""
answer x
answer 2.8
click Main1.Command6
print Main1.Text15
print Main1.List2
click Main1.Check1
click Main1.Command6
print Main1.Label26
click Main1.Check2
click Main1.Command6
print Main1.Label26
click Main1.Check3
click Main1.Command6
print Main1.List2
set Main1.Text19 0
click Main1.Command6
print Main1.Label26
set Main1.Text19 " "
set Main1.Text20 1
click Main1.Command6
print Main1.List2
set Main1.Text19 ""
set Main1.Text20 ""
set Main1.Text18 1
click Main1.Command6
print Main1.Label26
set Main1.Text18 ""
visible Main1.Check4
visible Main1.Check5
visible Main1.Check6
visible Main1.Check7
visible Main1.Check8
visible Main1.Check9
click Main1.RefselectON
visible Main1.Check4
click Main1.Check4
click Main1.Command6
print Main1.Label26
click Main1.Check4
visible Main1.Check5
click Main1.Check5
click Main1.Command6
print Main1.Label26
click Main1.Check5
visible Main1.Check6
click Main1.Check6
click Main1.Command6
print Main1.Label26
click Main1.Check6
visible Main1.Check7
click Main1.Check7
click Main1.Command6
print Main1.Label26
click Main1.Check7
visible Main1.Check8
click Main1.Check8
click Main1.Command6
print Main1.Label26
click Main1.Check8
visible Main1.Check9
click Main1.Check9
click Main1.Command6
print Main1.Label26
click Main1.Check9
echo observed reflections: the atoms go, but for their names
click Main1.Command15
print Module1.NAtom
print Module1.AtomLabel(2)
print Main1.List1
print Main1.Label20
echo the two loads of a file that ends behind the cell: another window keeps the name, the menu takes it
set Main1.Text15 3
answer data/ZOLDATA/NaCl.cry
click Main1.DATA_LOAD
print Main1.Label31
print Main1.Label26
answer tests/scripts/cell.cry
click PATTERN3.Command5
print Main1.Text17
print Pattern2.Label18
print Main1.Label19
print Main1.Label20
print Main1.List1
print Main1.List2
print Main1.Text3
answer tests/scripts/cell.cry
click Main1.DATA_LOAD
print Main1.Text17
print Pattern2.Label18
print PATTERN3.Label6
caption Xd
caption Zaxis
caption Dring
caption FiberTexture
caption Pattern
print Main1.Label26
answer tests/scripts/observed.cry
click Pattern2.Command16
print Main1.Label31
print Main1.Combo2
print Main1.List2
answer data/ZOLDATA/NaCl.cry
click Pattern2.Command16
print Main1.Combo2
print Main1.Label31
print Main1.Label20
answer data/ZOLDATA/NaCl.cry
click Main1.DATA_LOAD
print Main1.Label31
answer ""
click Main1.DATA_LOAD
print Main1.CrystalFile
print Main1.Text17
echo two tables of a structure database, of which an empty line repeats a row; cancelled, nothing changes
set Main1.Text7 2
answer tests/scripts/sites.icsd
click Main1.ImportFromICSD
print Main1.Text1
print Main1.Text2
print Main1.Text3
print Main1.Text4
print Main1.Text5
print Main1.Text6
print Main1.Label16
print Main1.Label20
print Main1.List1
cancel
click Main1.ImportFromICSD
print Main1.Label19
answer examples/cif/halite.cif
click Main1.ImportfromCIF
print Main1.Label20
echo windows open by their buttons, some only with reflections
click Main1.Command6
click Main1.Command9
print Pattern.Text1
set Main1.Text15 .5
click Main1.Command9
print Pattern.Text1
print Main1.DisplayScale
echo the atoms on paper
click Main1.Command3
printer
click Main1.OWARI
echo never
