# Rock salt along [1 1 0]: black spots of even indices, weak ones of odd indices between them.
answer data/ZOLDATA/NaCl.cry
click Main1.DATA_LOAD
click Main1.Command9              # "Single Crystal"
set Pattern.Text3 1
set Pattern.Text4 1
set Pattern.Text5 0
click Pattern.Check3              # "Index"
click Pattern.Command8
export Pattern.Picture1 figure-spot-pattern.png
