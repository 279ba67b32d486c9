# Directions of a cube at their places: [1 1 1] at tan(54.74/2) = 0.518 of the stereographic radius, [1 0 1] at
# sqrt(1 - cos 45) = 0.5412 of the half side of the square, <1 1 0> in its corners, and on the sphere at the sine.
echo what does not do is told
click MasterPattern.Make
answer tests/scripts/observed.cry
click Main1.DATA_LOAD
click MasterPattern.Make
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click Pattern2.ShowMasterPattern
click MasterPattern.TurnSphere
click MasterPattern.SavePicture
print MasterPattern.Voltage
set MasterPattern.Voltage 0
click MasterPattern.Make
set MasterPattern.Voltage 15
set MasterPattern.Points 40
click MasterPattern.Make
print MasterPattern.Status
echo there is no place before there is a pattern
press MasterPattern.Picture 0 0
print MasterPattern.Place
set MasterPattern.Points 21
click MasterPattern.Make
print MasterPattern.Status
press MasterPattern.Picture 0.3660254 0.3660254
print MasterPattern.Place
press MasterPattern.Picture 0 -0.4142136
print MasterPattern.Place
press MasterPattern.Picture 0.8 0.8
print MasterPattern.Place
click MasterPattern.South
press MasterPattern.Picture 0.3660254 0.3660254
print MasterPattern.Place
click MasterPattern.Lambert
click MasterPattern.North
press MasterPattern.Picture 0.5411961 0
print MasterPattern.Place
press MasterPattern.Picture 1 -1
print MasterPattern.Place
echo [1 1 1] in the middle: [0 0 1] upward at sqrt(2/3), [1 -1 0] to the left; a quarter further [0 0 1] to the left
set MasterPattern.MiddleU 1
set MasterPattern.MiddleV 1
click MasterPattern.TurnSphere
print MasterPattern.Globe
press MasterPattern.Picture 0 0.8164966
print MasterPattern.Place
press MasterPattern.Picture -1 0
print MasterPattern.Place
set MasterPattern.TurnAngle 90
click MasterPattern.TurnSphere
press MasterPattern.Picture -0.8164966 0
print MasterPattern.Place
set MasterPattern.MiddleU 0
set MasterPattern.MiddleV 0
set MasterPattern.MiddleW 0
click MasterPattern.TurnSphere
echo another crystal: what is drawn stays that of silicon until Make
answer data/ZOLDATA/Copper.cry
click Main1.DATA_LOAD
set MasterPattern.MiddleW 1
click MasterPattern.TurnSphere
print MasterPattern.Status
click MasterPattern.Make
print MasterPattern.Status
