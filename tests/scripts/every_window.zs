# Every window is in use, and all is there for what takes long. Other tests begin here.
answer data/ZOLDATA/Quartz.cry
click Main1.DATA_LOAD
choose Main1.Combo1 CuKa
set Main1.Text15 1.2
click Main1.Command6
click Main1.Command1
click Main1.Command7
click Main1.Command8
click Main1.Command9
click Main1.Command11
click Main1.Command12
click Main1.Command13
click MAIN_MENU.Show_Utility
click MAIN_MENU.Camera_parameters
set AtomDistance.Text1 2
click AtomDistance.Command1
set Pattern.Text3 1
click Pattern.Command8
choose Main1.Combo1 20
click Main1.Command10
set Pattern2.Text3 1
click Pattern2.Command8
set PATTERN3.Text2 6
leave PATTERN3.Text2
press PATTERN3.Picture1 100 100
release PATTERN3.Picture1 200 300
click PATTERN3.Command2
press PATTERN3.Picture1 100 100
move PATTERN3.Picture1 200 300
release PATTERN3.Picture1 200 300
press PATTERN3.Picture1 300 100
move PATTERN3.Picture1 200 400
release PATTERN3.Picture1 200 400
press PATTERN3.Picture1 50 100
move PATTERN3.Picture1 400 120
release PATTERN3.Picture1 400 120
set PATTERN3.Text1 90
click PATTERN3.Command1
click PATTERN3.CP_Setting_Show
set PATTERN3.Text10 1
set FiberTexture.Text5 1
set Zaxis.Text1 2
set Pattern2.Text6 1
click InputAtom.Command2
click Main1.Command1
print PATTERN3.SolutionCount
print AtomDistance.List1
