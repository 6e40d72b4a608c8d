# Residuals in their order over the quantiles of a normal distribution, around the line on which both are the same.
load style
set lmargin at screen 90.0 / width
set rmargin at screen 1 - 30.0 / width
set tmargin at screen 1 - 20.0 / height
set bmargin at screen 60.0 / height
set border 3
set xlabel "quantile of the normal distribution"
set ylabel "residual in standard deviations" offset 0
set grid back
set xrange [low:high]
plot x with lines lc rgb muted lw 1.5 dt (6, 4), \
     "quantiles" with points pt 7 ps size lc rgb group1
