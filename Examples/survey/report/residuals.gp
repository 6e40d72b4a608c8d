# Residuals over fitted values, around the line where there is none.
load style
set lmargin at screen 90.0 / width
set rmargin at screen 1 - 30.0 / width
set tmargin at screen 1 - 20.0 / height
set bmargin at screen 60.0 / height
set border 3
set xlabel "fitted value"
set ylabel "residual" offset 0
set grid ytics back
set arrow from graph 0, first 0 to graph 1, first 0 nohead back lc rgb muted lw 1.5 dt (6, 4)
plot "residuals" with points pt 7 ps size lc rgb group1
