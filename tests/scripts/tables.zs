# The two tables. By hand: Enter walks by rows and keeps a cell with nothing typed; backspace takes a character back,
# and stays as a character in an empty buffer; the origin shift is added to each coordinate.
set Main1.Text7 2
set Main1.Text1 4
set Main1.Text2 4
set Main1.Text3 4
set Main1.Text4 90
set Main1.Text5 90
set Main1.Text6 90
echo typing
click Main1.Command1
type InputAtom.G "ab\bc"
print InputAtom.Text1
type InputAtom.G "\b\b\bX\r"
print InputAtom.Text1
type InputAtom.G "Na\r.9\r.1\r.2\r.3\r.5\rB\r\r"
print InputAtom.G
echo over an old cell, and one left as it is
cell InputAtom.G 1 1
type InputAtom.G "A\r\r.5\r"
print InputAtom.G
echo a cell away, a row away
cell InputAtom.G 1 6
click InputAtom.Command3
type InputAtom.G "\r\r"
cell InputAtom.G 4 1
type InputAtom.G "D\rSi\r"
cell InputAtom.G 2 7
click InputAtom.Command4
type InputAtom.G "\r"
print InputAtom.G
echo OK takes the sites before the first empty name, and not what stands in the buffer
cell InputAtom.G 2 1
type InputAtom.G "B\rCl\rx\r.25(1)\r"
type InputAtom.G "typed without Enter"
cell InputAtom.G 4 1
type InputAtom.G "\b"
set InputAtom.Text1 "E"
type InputAtom.G "\r"
cell InputAtom.G 3 1
click InputAtom.Command3
set InputAtom.Text2 .5
set InputAtom.Text3 .25
set InputAtom.Text4 -.1
click InputAtom.Command1
print Main1.Label19
print Main1.Label20
print Main1.List1
print InputAtom.Text2
print InputAtom.G
echo CANCEL changes nothing
type InputAtom.G "Z\r"
cell InputAtom.G 1 1
type InputAtom.G "Z\r"
click InputAtom.Command2
print Module1.AtomLabel(1)
print InputAtom.G
echo behind the last row there is a free one: the next site goes there
type InputAtom.G "F\rFe\r"
print InputAtom.G
echo lists of sites replace the table, and a cancelled one empties it
answer tests/scripts/sites.txt
click InputAtom.Import_CIF
print InputAtom.G
answer tests/scripts/mincryst.txt
click InputAtom.Import_MINCRYST
print InputAtom.G
cancel
click InputAtom.Import_CIF
print InputAtom.G
print Module1.NAtom
echo observed reflections of a cubic face-centred cell: 8 of {111} with 8 * 100, 6 of {200} with 8 * 46 on the list
set Main1.Text7 225
leave Main1.Text7
click Main1.Command15
type InputJCPDS.G "100\r1\r1\r1\r46\r2\r0\r0\r7\r\r"
cell InputJCPDS.G 5 1
type InputJCPDS.G "9\r"
click InputJCPDS.Command1
print Main1.Label31
print Module1.JcpdsI(2)
print Module1.JcpdsH(2)
print Module1.JcpdsK(1)
print Module1.JcpdsL(1)
print InputJCPDS.G
cell InputJCPDS.G 2 1
click InputJCPDS.Command4
print InputJCPDS.G
click InputJCPDS.Command2
set Main1.Text15 1.9
click Main1.Command6
print Main1.List2
