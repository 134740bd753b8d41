# Draws the tables that spectrum left, the first with its greatest levels:
#
#   gnuplot -c spectrum.gnuplot PICTURE TITLE TABLE NAME [TABLE NAME]
#
# makes the PNG file PICTURE.
set terminal pngcairo size 1200,700 font 'Sans,11'
set output ARG1
set datafile separator tab

set title ARG2 noenhanced font 'Sans,14'
set grid lt 1 lw 1 lc rgb '#d8d8d8'
set xlabel 'frequency, kHz'
set ylabel 'level, dB re a sine of full scale'
set key top right Left reverse noenhanced

stats ARG3 using 1 name 'frequency' nooutput
stats ARG3 using 3 name 'greatest' nooutput
stats ARG3 using 2 name 'mean' nooutput
top = 10 * ceil(greatest_max / 10)
bottom = 10 * floor(mean_min / 10)
if (bottom < top - 130) bottom = top - 130
if (bottom > top - 10) bottom = top - 10
set xrange [0:frequency_max / 1000]
set yrange [bottom:top]

if (ARGC > 4) {
  plot ARG3 using ($1 / 1000):2 with lines lw 2 lc rgb '#1f5fa8' title ARG4, \
       ARG5 using ($1 / 1000):2 with lines lw 2 lc rgb '#c8501e' title ARG6
} else {
  plot ARG3 using ($1 / 1000):3 with lines lc rgb '#a0a0a0' title 'greatest of all segments', \
       '' using ($1 / 1000):2 with lines lw 2 lc rgb '#1f5fa8' title 'mean of '.ARG4
}
