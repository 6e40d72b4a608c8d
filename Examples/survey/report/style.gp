# What all pictures have in common. The colours are variables; width and height are settings.
set terminal svg size width,height noenhanced font "sans-serif,14" butt
set encoding utf8
set minussign
set border lc rgb muted
set tics textcolor rgb ink nomirror scale 0.6
set xlabel textcolor rgb ink
set ylabel textcolor rgb ink
unset key
