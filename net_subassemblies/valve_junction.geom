# Valve junction: three lines that can be parted from one another. Lengths in metres along the way from A to B.
[node]
name;x;y;vis.layer;pmin;pmax;kind
A;-400;0;stations;25;84;innode
B;400;0;stations;25;84;innode
C;0;-400;stations;25;84;innode
M;0;0;stations;25;84;innode

[valve]
name;node1;node2;state;dpmax;qmin;qmax;vis.layer
VA;A;M;open;60;-4000;4000;stations
VB;M;B;open;60;-4000;4000;stations
VC;M;C;open;60;-4000;4000;stations

[subnet]
name;pins;vis.size.default;vis.layer.default;main_element.default
SUB;"A;B;C";20;stations;VA
