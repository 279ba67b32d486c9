# Silicon at 20 kV: from [0 0 1] to [1 1 2] by its angles, then a tilt by arrow.
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click Main1.Command10             # "KP CALC"
set Pattern2.Text3 0
set Pattern2.Text4 0
set Pattern2.Text5 1
set Pattern2.Text19 74            # as many as keep equivalent lines together
click Pattern2.Option2
click Pattern2.Command8
export Pattern2.Picture1 figure-kikuchi-001.png
set Pattern2.Text22 0
type Pattern2.Text23 "54.7356\r"
click Pattern2.Command4           # "Transfer"
echo "Zone axis:"
print Pattern2.Text3
print Pattern2.Text4
print Pattern2.Text5
export Pattern2.Picture1 figure-kikuchi-112.png
click Pattern2.Command1(0)        # tilts to the right
echo "After a tilt of 3.7 degrees:"
print Pattern2.Text3
print Pattern2.Text4
print Pattern2.Text5
