# The window of a measured pattern: modes of the mouse, calibration on Si(001), voltage, another crystal.
click MAIN_MENU.Command3
visible PATTERN3.Frame1
click PATTERN3.CPS_Si001
visible PATTERN3.Frame1
visible PATTERN3.Command10(3)
click PATTERN3.Option1
press PATTERN3.Picture1 100 200
echo a marker, and no line
print PATTERN3.LineX(0,0)
print PATTERN3.SiMarkY1
click PATTERN3.Command10(0)
print PATTERN3.SiMarkY1
echo the pattern centre, while the markers stay
click PATTERN3.CenterPosition
print PATTERN3.SiMode
click PATTERN3.Command10(0)
print PATTERN3.SiMarkY1
press PATTERN3.Picture1 255 510
# of a zero no digit is significant; the lower edge lies 37 degrees off
print PATTERN3.Text14
print PATTERN3.Text15
click PATTERN3.CenterPosition
print PATTERN3.CenterMode
click PATTERN3.CenterPosition
click PATTERN3.CPS_Si001
print PATTERN3.CenterMode
echo camera at 33 degrees, shifts 4 and -6.5
# length 255.5/tan 33 = 393.434, centre (283.012, 210.672), poles 20 degrees = 143.199 below, 15.264 = 107.371 above
set CameraParameters.Text7 20
press PATTERN3.Picture1 283.012 353.871
click PATTERN3.Option2
press PATTERN3.Picture1 283.012 103.301
click PATTERN3.Command9
print PATTERN3.Text3
print PATTERN3.Text14
print PATTERN3.Text15
print CameraParameters.Text3
echo voltage, without relativity and only when the box is left
set PATTERN3.Text5 25
print Main1.Combo1
leave PATTERN3.Text5
print Main1.Combo1
print Main1.Option2
# sqrt(150/25000), and 0 volts leave it
print Main1.Text16
set PATTERN3.Text5 0
leave PATTERN3.Text5
print Main1.AccVoltage
print Main1.Text16
echo another crystal
answer data/ZOLDATA/Magnesium.cry
click PATTERN3.Command5
print PATTERN3.Label6
print PATTERN3.Label8
print PATTERN3.TripleS(1,0)
