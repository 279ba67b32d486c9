# Figures for a paper, as drawings that stay sharp at any size. They go into the folder that zol-script runs in.

# Rutile along [1 0 0] with indices, 200 kV: SVG, to be worked on in a drawing program.
answer data/ZOLDATA/Rutile.cry
click Main1.DATA_LOAD
choose Main1.Combo1 200
click Main1.Command6              # "Calc"
click Main1.Command9              # "Single Crystal"
set Pattern.Text1 0.9             # width of the picture, 1/angstrom
set Pattern.Text3 1
set Pattern.Text4 0
set Pattern.Text5 0
click Pattern.Check3              # "Index"
answer 2.5
click Pattern.Spotsize            # per cent of half the width
answer 11
click Pattern.Fsize               # points
export Pattern.Picture1 rutile-100.svg

# Silicon along [1 1 2], 20 kV: PDF, for LaTeX.
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
choose Main1.Combo1 20
click Main1.Command6
click Main1.Command10             # "KP CALC"
set Pattern2.Text3 1
set Pattern2.Text4 1
set Pattern2.Text5 2
set Pattern2.Text1 25             # half width of the picture, degrees
set Pattern2.Text19 74            # {1 1 1}, {2 2 0}, {4 0 0}, {3 1 1} and {4 2 2}, 8 + 12 + 6 + 24 + 24 reflections
click Pattern2.Option2            # "Sqr( I )", for the weak ones
click Pattern2.Command8
export Pattern2.Picture1 silicon-112.pdf
