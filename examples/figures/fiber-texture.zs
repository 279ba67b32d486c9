# Rock salt whose crystallites share the normal of (1 1 1), spread by 8 degrees.
answer data/ZOLDATA/NaCl.cry
click Main1.DATA_LOAD
click Main1.Command12             # "Fiber Pattern"
set FiberTexture.Text1 1          # width of the picture, 1/angstrom
set FiberTexture.Text2 8
set FiberTexture.Text3 1
set FiberTexture.Text4 1
set FiberTexture.Text5 1
click FiberTexture.Command8
export FiberTexture.Picture1 figure-fiber-texture.png
