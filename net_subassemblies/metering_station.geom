# Metering station: the meter between two valves, with a by-pass. Lengths in metres along the way from In to Out.
[node]
name;x;y;vis.layer;pmin;pmax;kind
In;-200;0;stations;25;84;innode
A;-100;-60;stations;25;84;innode
B;100;-60;stations;25;84;innode
Out;200;0;stations;25;84;innode

[valve]
name;node1;node2;state;dpmax;qmin;qmax;vis.layer
V1;In;A;open;60;-4000;4000;stations
V2;B;Out;open;60;-4000;4000;stations
BP;In;Out;closed;60;-4000;4000;stations

[resistor]
name;node1;node2;zeta;diameter;qmin;qmax;vis.layer
M;A;B;5;800;-4000;4000;stations

[subnet]
name;pins;vis.size.default;vis.layer.default;main_element.default
SUB;"In;Out";20;stations;M
