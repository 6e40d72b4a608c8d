# Rows as points, columns as arrows, on scales of their own with the same origin.
load style
set lmargin at screen left / width
set rmargin at screen (left + across) / width
set tmargin at screen 1 - above / height
set bmargin at screen 1 - (above + down) / height
set xrange [x_low:x_high]
set yrange [y_low:y_high]
set x2range [x_low / stretch:x_high / stretch]
set y2range [y_low / stretch:y_high / stretch]
set xtics step
set ytics step
set x2tics -1, 0.5, 1 textcolor rgb muted
set y2tics -1, 0.5, 1 textcolor rgb muted
set x2label "correlation with component 1" textcolor rgb muted
set y2label "correlation with component 2" textcolor rgb muted
set object 1 circle at first 0, 0 size first stretch fillcolor rgb muted fillstyle empty lw 1 dt (3, 4) back
set arrow 1001 from graph 0, first 0 to graph 1, first 0 nohead back lc rgb faint
set arrow 1002 from first 0, graph 0 to first 0, graph 1 nohead back lc rgb faint
if (legend) {
    set key at screen (left + across / 2) / width, screen 1 - 8.0 / height center top horizontal Left reverse \
        textcolor rgb ink samplen 1 width 1
}
shape(k) = word("7 9 5 11 13 15", k) + 0
colour(k) = value("group" . k)
of(k) = column(3) == k ? column(2) : NaN
plot for [k = 1:series] "rows" using 1:(of(k)) with points pt shape(k) ps size lc rgb colour(k) notitle, \
     for [k = 1:legend] "means" using 1:(of(k)) with points pt shape(k) ps 2.1 lc rgb paper notitle, \
     for [k = 1:legend] "means" using 1:(of(k)) with points pt shape(k) ps 1.6 lc rgb colour(k) notitle, \
     for [k = 1:legend] NaN with points pt shape(k) ps 0.9 lc rgb colour(k) title group_name[k]
