# A cell for each two columns, in the colour of their correlation.
load style
set lmargin at screen left / width
set rmargin at screen (left + side) / width
set tmargin at screen 1 - above / height
set bmargin at screen 1 - (above + side) / height
unset border
set tics scale 0
set xrange [0.5:count + 0.5]
set yrange [count + 0.5:0.5]
set cbrange [-1:1]
set cbtics -1, 0.5, 1 textcolor rgb ink scale 0.5
set palette maxcolors 200 defined (-1 "#b35806", -0.5 "#f1a340", 0 "#f7f7f7", 0.5 "#67a9cf", 1 "#2166ac")
set colorbox user origin screen (left + side + 24.0) / width, screen 1 - (above + side) / height \
    size screen 16.0 / width, screen side / height noborder
set style fill solid 1 noborder
plot "cells" using 1:2:(half):(half):3 with boxxyerror fc palette
