# Each step undone shows what stood there before it, and done again what stood after it: the same lines twice.
show Main1
answer data/ZOLDATA/NaCl.cry
click Main1.DATA_LOAD
snapshot
type Main1.Text1 9
leave Main1.Text1
set Main1.Text15 1.5
click Main1.Command6
print Main1.Text1
print Main1.Label26
undo
print Main1.Label26
undo
print Main1.Text15
undo
print Main1.Text1
print Main1.Text14
redo
redo
redo
print Main1.Text1
print Main1.Label26
click Main1.Command6
print Main1.Label26
restore
print Main1.Text1
print Main1.Text15
