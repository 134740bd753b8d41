# Draws the errors of both laws from the data that companding left:
#
#   gnuplot -c companding.gnuplot FOLDER TITLE
#
# makes FOLDER/companding.png.
set terminal pngcairo size 1200,1400 font 'Sans,11'
set output ARG1.'/companding.png'
set datafile separator tab

aLaw = '#1f5fa8'
muLaw = '#c8501e'
speech = '#808080'

# A uniform code of 8 bits has steps of 2^-7 and thus an error of step^2 / 12, whatever the level.
uniform(level) = level + 10 * log10(12 * 2**14)

set multiplot title 'G.711 coding of '.ARG2 noenhanced font 'Sans,14'
set grid lt 1 lw 1 lc rgb '#d8d8d8'
set lmargin at screen 0.085
set rmargin at screen 0.97

set tmargin at screen 0.945
set bmargin at screen 0.565
set title 'Signal-to-noise ratio over the level of the speech'
set xlabel 'RMS level of segments of 20 ms, dBFS'
set ylabel 'signal-to-noise ratio, dB'
set xrange [-100:0]
set yrange [-10:50]
set ytics 10
set key bottom right Left reverse
plot uniform(x) with lines lc rgb speech dt 2 lw 2 title 'uniform code of 8 bits, calculated', \
     ARG1.'/segments.tsv' using 1:2 with points pt 7 ps 0.5 lc rgb aLaw title 'A-law, each segment', \
     '' using 1:3 with points pt 7 ps 0.5 lc rgb muLaw title 'mu-law, each segment', \
     ARG1.'/groups.tsv' using 1:2 with linespoints pt 6 ps 1.5 lw 2 lc rgb aLaw title 'A-law, groups of 6 dB', \
     '' using 1:3 with linespoints pt 6 ps 1.5 lw 2 lc rgb muLaw title 'mu-law, groups of 6 dB'

unset key
unset xlabel
set format x ''
set ytics autofreq
file = ARG1.'/waveforms.tsv'
stats file using 1 name 'time' nooutput
set xrange [0:time_max > 0 ? time_max : 1]

set tmargin at screen 0.49
set bmargin at screen 0.36
set title 'Speech'
set ylabel '16-bit steps'
set yrange [-32768:32767]
plot file using 1:2:3 with filledcurves lc rgb speech, '' using 1:2 with lines lc rgb speech

# Both errors on one scale.
stats file using (abs($4) > abs($5) ? abs($4) : abs($5)) name 'a' nooutput
stats file using (abs($6) > abs($7) ? abs($6) : abs($7)) name 'mu' nooutput
bound = 1.05 * (a_max > mu_max ? a_max : mu_max)
set yrange [-bound:bound]

set tmargin at screen 0.32
set bmargin at screen 0.20
set title 'Error of A-law'
plot file using 1:4:5 with filledcurves lc rgb aLaw, '' using 1:4 with lines lc rgb aLaw

set tmargin at screen 0.16
set bmargin at screen 0.05
set title 'Error of mu-law'
set format x '%g'
set xlabel 'time, s'
plot file using 1:6:7 with filledcurves lc rgb muLaw, '' using 1:6 with lines lc rgb muLaw
unset multiplot
