# The unit cell of rock salt, and its reflections for copper radiation.
show Main1
answer data/ZOLDATA/NaCl.cry
click Main1.DATA_LOAD
echo "Space group and cell volume:"
print Main1.Label16
print Main1.Text14
echo "Atoms of the unit cell:"
print Main1.List1
choose Main1.Combo1 CuKa
set Main1.Text15 "1.2"
click Main1.Command6
echo "Reflections for CuKa to 1.2 angstroms:"
print Main1.Label24
print Main1.List2
