# The variance of each component, with its share.
load style
set lmargin at screen 70.0 / width
set rmargin at screen 1 - 30.0 / width
set tmargin at screen 1 - 20.0 / height
set bmargin at screen 60.0 / height
set border 3
set xlabel "component"
set ylabel "variance" offset 1
set xrange [0.5:last + 0.5]
set yrange [0:top]
set xtics 1, step
set grid ytics back
set arrow from graph 0, first 1 to graph 1, first 1 nohead back lc rgb muted lw 1.5 dt (6, 4)
set label "variance of a column" at graph 0.995, first 1 offset 0, 0.6 right textcolor rgb muted
plot "variances" with lines lc rgb group1 lw 2, \
     "variances" with points pt 7 ps 1.1 lc rgb paper, \
     "variances" with points pt 7 ps 0.8 lc rgb group1
