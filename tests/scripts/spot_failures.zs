# What the windows of spot patterns and fiber textures ask, with the present value, and what ends the run there; of copper lines without an atom all spots are 0
answer "data/ZOLDATA/CopperLines.cry"
click Main1.DATA_LOAD
set Pattern.Text5 1
click Pattern.Command8
answer "data/ZOLDATA/NaCl.cry"
click Main1.DATA_LOAD
click Main1.Command9
click Pattern.Spotsize
click Pattern.Rpitch
click Pattern.Fsize
call Pattern.Imagesize
answer 2.5
click Pattern.Spotsize
answer 7.5
click Pattern.Rpitch
answer 10
click Pattern.Fsize
answer 6000
call Pattern.Imagesize
click Pattern.Spotsize
click Pattern.Rpitch
click Pattern.Fsize
call Pattern.Imagesize
answer ""
call Pattern.Imagesize
call Pattern.Imagesize
echo font sizes, spot sizes, pitches
answer ""
click Pattern.Fsize
answer "8 pt"
click Pattern.Fsize
answer 0
click Pattern.Fsize
answer 2160
click Pattern.Fsize
answer 2161
click Pattern.Fsize
answer 1e42
click Pattern.Spotsize
answer 1e42
click Pattern.Rpitch
echo axes, levels, widths
set Pattern.Text5 0
click Pattern.Command8
set Pattern.Text3 1
set Pattern.Text4 -1
set Pattern.Text5 .2
click Pattern.Command8
set Pattern.Text5 40000
click Pattern.Command8
set Pattern.Text5 1
set Pattern.Text2 32768
set Pattern.Text2 0
set Pattern.Text1 20000
click Pattern.Command8
set Pattern.Text1 1
set Pattern.Text3 0
set Pattern.Text4 0
set Pattern.Text5 10000
click Pattern.Command8
echo fiber textures
answer "data/ZOLDATA/NaCl.cry"
click Main1.DATA_LOAD
click FiberTexture.Fsize
click FiberTexture.Rpitch
click FiberTexture.Imagesize
click FiberTexture.Spotsize
set FiberTexture.Text3 1
answer 12
click FiberTexture.Fsize
answer 3
click FiberTexture.Rpitch
answer 4500
click FiberTexture.Imagesize
click FiberTexture.Fsize
click FiberTexture.Rpitch
click FiberTexture.Imagesize
answer -100
click FiberTexture.Imagesize
answer 0.3
click FiberTexture.Imagesize
click FiberTexture.Imagesize
answer 3e9
click FiberTexture.Imagesize
set FiberTexture.Text1 1
set FiberTexture.Text3 33000
set FiberTexture.Text3 0
click FiberTexture.Command8
set FiberTexture.Text5 1
set FiberTexture.Text6 -1
click FiberTexture.Command8
set FiberTexture.Text6 ""
set FiberTexture.Text2 1e20
click FiberTexture.Command8
set Main1.Text18 1
set Main1.Text19 1
set Main1.Text20 1
click Main1.Command6
click FiberTexture.Command8
echo two are enough
set Main1.Text20 ""
set Main1.Text15 3
click Main1.Command6
print Main1.Label26
set FiberTexture.Text2 1
click FiberTexture.Command8
