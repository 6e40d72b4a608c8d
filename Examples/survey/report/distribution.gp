# A row for each group: the bars of its histogram, and its box below them.
load style
set lmargin at screen left / width
set rmargin at screen 1 - 20.0 / width
set tmargin at screen 1 - 14.0 / height
set bmargin at screen 74.0 / height
set border 1
set xtics out
set ytics scale 0
set grid xtics back
set yrange [groups + 0.5:0.5]
set boxwidth 1
colour(k) = value("group" . k)
of(k) = column(1) == k
plot for [k = 1:groups] "bars" using (of(k) ? $2 : NaN):4:2:3:(k + 0.2):(k + 0.2 - 0.66 * $4) \
         with boxxyerror fs solid 1 noborder lc rgb colour(coloured ? k : 1), \
     "boxes" using 2:($1 + 0.33):($6 - $2):(0) with vectors nohead lc rgb ink lw 1, \
     "boxes" using 3:($1 + 0.33):3:5:($1 + 0.26):($1 + 0.4) with boxxyerror lc rgb paper fs solid 1 border lc rgb ink, \
     "boxes" using 4:($1 + 0.25):(0):(0.16) with vectors nohead lc rgb ink lw 2.5, \
     "outside" using 2:($1 + 0.33) with points pt 7 ps 0.25 lc rgb muted
