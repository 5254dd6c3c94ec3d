# Draws what printSizes() prints: time against the size of the reply.
set datafile separator "\t"
set terminal svg size 800,500 font "sans-serif,13" background "white"
set output picture
set logscale xy
set xlabel "bytes of the reply (GetProfiles with 1 to 64 profiles)"
set ylabel "microseconds, with the destruction"
set key left top
set grid
plot for [column=2:6] data using 1:column with linespoints title columnheader(column)
