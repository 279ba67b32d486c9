# Muscovite to 0.27 angstroms in full sphere, and patterns of the whole list: for time and memory.
show Main1
answer data/ZOLDATA/Muscovite.cry
click Main1.DATA_LOAD
choose Main1.Combo1 200
set Main1.Text15 ".27"
click Main1.Command6
print Main1.RefCount
click Main1.Command8       # Debye rings
click Main1.Command10      # Kikuchi pattern
set Pattern2.Text3 1
set Pattern2.Text4 1
set Pattern2.Text5 3
click Pattern2.Command8
print Main1.KikuchiRefLimit
click Main1.Command12      # fiber texture
set FiberTexture.Text1 3
set FiberTexture.Text3 0
set FiberTexture.Text4 0
set FiberTexture.Text5 1
set FiberTexture.Text2 2
click FiberTexture.Command8
