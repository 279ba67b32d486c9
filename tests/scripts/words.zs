# The language itself: quotes, escapes and comments; what each kind of thing prints; answers in their order, and
# none; fields that are not there.
echo "a b" # "x
echo ""
echo a  "b" c#d
echo "1\t\"\\#"
set Main1.Text1 ""
print Main1.Text1
type Main1.Text1 "12\b3"
print Main1.Text1
print Main1.Text15
print Main1.Combo1
print Main1.Check1
print Main1.Option1
print Main1.Command6
print Main1.Label24
print PATTERN3.ProgressBar1
print Main1.MassRatio
print Main1.AxisSetting
print Main1.SGNames(14)
print Module1.NAtom
visible Main1.Check4
caption Main1
print PATTERN3.TripleHKL(125000,8)
print Main1.AsfX(1)
printer
click Main1.DATA_LOAD
call Main1.AtomCcalc
print Module1.RefH(1)
print Module1.UCPos(1,4)
set Main1.Text1 4
set Main1.Text7 221
leave Main1.Text7
set Main1.Text15 -2
cancel
answer "3.5"
click Main1.Command6
print Main1.Text15
print Main1.Label26
