# The map of zone axes of a triclinic cell down [234], turned by 5 degrees. Places, azimuths and latitudes (rounded
# down to 0.1) agree to 0.1 degree with vectors in a Cartesian frame; the net is that of sine and of equal steps.
set Main1.Text7 2
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 95
set Main1.Text5 100
set Main1.Text6 105
click Main1.Command15
type InputJCPDS.G "100\r1\r0\r0\r"
click InputJCPDS.Command1
set Main1.Text15 3
click Main1.Command6
click Main1.Command10
set Pattern2.Text3 2
set Pattern2.Text4 3
set Pattern2.Text5 4
click Pattern2.Check2
set Zaxis.Text1 1
set Zaxis.Text2 0
set Zaxis.Text3 1
click Pattern2.Command7
print Zaxis.Picture1
print Pattern2.Picture1
print Zaxis.Label_phi(0)
print Zaxis.Label_theta(0)
print Main1.PatternAngle
print Main1.RefCount
echo [110], too, and the angles of [100] [010] [001] [110] [101] [011] to the axis
set Zaxis.Text2 1
click Zaxis.Check3
print Pattern2.Picture1
print Zaxis.Label_phi(0)
print Zaxis.Label_theta(0)
print Zaxis.Label_phi(1)
print Zaxis.Label_theta(1)
print Zaxis.Label_phi(2)
print Zaxis.Label_theta(2)
print Zaxis.Label_phi(3)
print Zaxis.Label_theta(3)
print Zaxis.Label_phi(4)
print Zaxis.Label_theta(4)
print Zaxis.Label_phi(5)
print Zaxis.Label_theta(5)
echo both half spheres from the substrate normal, 20 degrees up, theta as latitude; a typed direction keeps what is drawn
click Zaxis.Check3
set Zaxis.Text1 0
set Zaxis.Text2 0
set Zaxis.Text3 ""
set CameraParameters.Text7 20
click Zaxis.Check1
click Zaxis.Check2
click Zaxis.Command2
click Zaxis.Command2
click Zaxis.Command3
click Zaxis.Option2
set Zaxis.Text7 30
set Zaxis.Text8 60
click Zaxis.Command1
set Zaxis.Text4 1
print Zaxis.Text7
print Zaxis.Text8
print Zaxis.Picture1
print Zaxis.KeepMap
print Zaxis.Label_phi(0)
print Zaxis.Label_theta(0)
print Zaxis.Label_phi(1)
print Zaxis.Label_theta(1)
print Zaxis.Label_phi(2)
print Zaxis.Label_theta(2)
print Zaxis.Label_phi(3)
print Zaxis.Label_theta(3)
print Zaxis.Label_phi(4)
print Zaxis.Label_theta(4)
print Zaxis.Label_phi(5)
print Zaxis.Label_theta(5)
set Zaxis.Text5 1
type Zaxis.Text6 "\r2"
print Zaxis.Text7
print Zaxis.Text6
echo the axis itself has no azimuth: the boxes stay
click Zaxis.Option1
set Zaxis.Text4 2
set Zaxis.Text5 3
set Zaxis.Text6 3
print Zaxis.Text7
print Zaxis.Text8
set Zaxis.Text6 4
print Zaxis.Text7
print Zaxis.Text8
echo the tilt is a Single; the angles of the reach add up in double, below 90 degrees, where a Single would lie above
answer data/ZOLDATA/NaCl.cry
click Main1.DATA_LOAD
set Pattern2.Text3 1
set Pattern2.Text4 1
set Pattern2.Text5 0
set Pattern2.Text19 1
click Pattern2.Check2
click Pattern2.Command6
set CameraParameters.Text7 -70
set Zaxis.Text1 1
click Zaxis.Option2
print Zaxis.Label_theta(1)
set Pattern2.Text14 30.000075
set CameraParameters.Text1 60
click Zaxis.Check3
print Pattern2.Picture1
echo the shift down counts whatever its sign: 60 and 29 degrees reach farther than 60
click Zaxis.Check3
set Pattern2.Text14 0
set Pattern2.Text15 -29
click Pattern2.Command8
click Zaxis.Check3
print Pattern2.Picture1
echo the mirror plane x = y of a cube takes [101] to [011] and keeps the reference (1 1 -1): azimuths change their sign
set CameraParameters.Text7 0
set Pattern2.Text3 1
set Pattern2.Text4 0
set Pattern2.Text5 1
click Pattern2.Command8
click Zaxis.Option2
click Zaxis.Option1
print Zaxis.Label_phi(0)
print Zaxis.Label_phi(1)
print Zaxis.Label_phi(2)
set Pattern2.Text3 0
set Pattern2.Text4 1
click Pattern2.Command8
click Zaxis.Option2
click Zaxis.Option1
print Zaxis.Label_phi(1)
print Zaxis.Label_phi(0)
print Zaxis.Label_phi(2)
