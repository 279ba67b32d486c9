# The detector in degrees and mm, of 40 mm: position 20/tan(acquisition), shifts position * tan(shift), all rounded
# down to 0.01 mm (x shift 0.001), angles from mm to 0.01 (acquisition 0.001) degree; worked out at a desk calculator.
click MAIN_MENU.Command3
echo as they start
print PATTERN3.Text1
print PATTERN3.AngleTol
print PATTERN3.Text2
print PATTERN3.NhklWanted
print PATTERN3.Text5
print PATTERN3.Text17
print PATTERN3.Text3
print PATTERN3.Text14
print PATTERN3.Text15
print PATTERN3.LastLine
print CameraParameters.Text1
print CameraParameters.Text2
print CameraParameters.Text3
print CameraParameters.Text5
print CameraParameters.Text6
print CameraParameters.Text7
visible PATTERN3.Text17
visible PATTERN3.Label16
visible PATTERN3.Text6
visible PATTERN3.Command14
visible PATTERN3.Frame1
visible PATTERN3.Command10(0)
echo degrees to mm, and to the camera parameters
set PATTERN3.Text3 35
print PATTERN3.Text12
print CameraParameters.Text1
set PATTERN3.Text14 4
print PATTERN3.Text13
print CameraParameters.Text2
set PATTERN3.Text15 -6.5
print PATTERN3.Text16
print CameraParameters.Text3
print Module1.CamYShift
echo mm to degrees, behind Enter
set PATTERN3.Text12 25
print PATTERN3.Text3
type PATTERN3.Text12 "\r"
print PATTERN3.Text3
print PATTERN3.Text14
print PATTERN3.Text15
set PATTERN3.Text13 3
type PATTERN3.Text13 "\r"
print PATTERN3.Text14
print PATTERN3.Text13
set PATTERN3.Text16 2
type PATTERN3.Text16 "\r"
print PATTERN3.Text15
print PATTERN3.Text16
echo the edges stay within 85 degrees, but for the upper one
set PATTERN3.Text14 -10
set PATTERN3.Text15 0
set PATTERN3.Text3 80
print PATTERN3.Text3
set PATTERN3.Text14 10
set PATTERN3.Text3 80
print PATTERN3.Text3
set PATTERN3.Text14 0
set PATTERN3.Text15 -20
set PATTERN3.Text3 80
print PATTERN3.Text3
set PATTERN3.Text15 20
set PATTERN3.Text3 80
print PATTERN3.Text3
set PATTERN3.Text3 90
print PATTERN3.Text3
print Module1.CamAcquisition
set PATTERN3.Text3 0
print PATTERN3.Text12
echo a camera file goes to its boxes and to the detector; cancelled, nothing changes
answer tests/scripts/camera.txt
click CameraParameters.Command1
print CameraParameters.Text1
print CameraParameters.Text2
print CameraParameters.Text3
print CameraParameters.Text5
print CameraParameters.Text6
print CameraParameters.Text7
print PATTERN3.Text3
print PATTERN3.Text14
print PATTERN3.Text15
print Module1.CameraFile
cancel
click CameraParameters.Command1
print Module1.CameraFile
cancel
click CameraParameters.Command2
print Module1.CameraFile
echo working distance 5 mm longer, detector inclined by 30 degrees: from the file again, position + 2.5, y shift - 4.33
set PATTERN3.Text3 50
set PATTERN3.Text7 30
set PATTERN3.Text4 5
print PATTERN3.Text12
print PATTERN3.Text16
print PATTERN3.Text3
print PATTERN3.Text14
print PATTERN3.Text15
echo each box of the camera
set CameraParameters.Text1 31
set CameraParameters.Text2 1.5
set CameraParameters.Text3 2.5
set CameraParameters.Text5 41
set CameraParameters.Text6 1.2
set CameraParameters.Text7 21
print Module1.CamAcquisition
print Module1.CamXShift
print Module1.CamYShift
print Module1.CamDetector
print Module1.CamXYRatio
print Module1.CamNormal
echo markers: crosses of 5 pixels to each side, nudged by half a pixel down, left, right, up
click PATTERN3.CPS_Si001
click PATTERN3.Option1
press PATTERN3.Picture1 100 200
click PATTERN3.Command10(0)
click PATTERN3.Command10(0)
click PATTERN3.Command10(1)
print PATTERN3.SiMarkX1
print PATTERN3.SiMarkY1
click PATTERN3.Option2
press PATTERN3.Picture1 300 150
print PATTERN3.SiAngle
click PATTERN3.Command10(2)
click PATTERN3.Command10(3)
click PATTERN3.Option3
click PATTERN3.Command10(3)
print PATTERN3.SiMarkX2
print PATTERN3.SiMarkY2
print PATTERN3.Picture1
press PATTERN3.Picture1 310 150
print PATTERN3.SiAngle
print PATTERN3.SiMarkX1
print PATTERN3.Picture1
echo a click on the pattern centre, off by (300 - 255)/255 tan 31 and so on, and its cross
click PATTERN3.CenterPosition
press PATTERN3.Picture1 300 200
print PATTERN3.Text14
print PATTERN3.Text15
print PATTERN3.Picture1
