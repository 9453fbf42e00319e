set terminal svg size 720,400 background "white" font "Helvetica,Arial,sans-serif,13"
set output "/dev/stdout"
set datafile separator whitespace
set border 3 lc rgb "#486581"; set tics nomirror textcolor rgb "#1f2933"
set grid ytics lc rgb "#bcccdc" lw 0.5
set key outside right center Left reverse samplen 2 spacing 1.3
set xlabel "captions in the document (median of all orders and languages)"
set ylabel "time, straight appender = 1"
set logscale x 10; set logscale y 2; set offsets graph 0.06, graph 0.06, 0, 0
set format x "10^{%L}"
$figures << END
100 0.68 1.39 2.92 2.05 6.54
1000 0.57 1.29 2.79 2.26 5.88
10000 0.69 1.43 4.22 4.00 5.90
100000 0.43 0.84 2.77 2.04 3.67
END
plot $figures using 1:2 with linespoints lw 2 pt 7 ps 0.8 lc rgb "#2f6fde" title "this library: write", $figures using 1:3 with linespoints lw 2 pt 6 ps 0.8 lc rgb "#7aa7f0" title "this library: all steps", $figures using 1:4 with linespoints lw 2 pt 5 ps 0.8 lc rgb "#d9822b" title "pugixml", $figures using 1:5 with linespoints lw 2 pt 9 ps 0.8 lc rgb "#c23030" title "tinyxml2", $figures using 1:6 with linespoints lw 2 pt 13 ps 0.8 lc rgb "#7d5ba6" title "libxml2"
