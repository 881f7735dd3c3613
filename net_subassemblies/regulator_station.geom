# Regulator station: two lines in parallel, one of them in reserve, each between valves. Lengths in metres along the way
# from In to Out.
[node]
name;x;y;vis.layer;pmin;pmax;kind
In;-300;0;stations;25;84;innode
A1;-150;100;stations;25;84;innode
A2;-150;-100;stations;25;84;innode
B1;150;100;stations;8;16;innode
B2;150;-100;stations;8;16;innode
Out;300;0;stations;8;16;innode

[valve]
name;node1;node2;state;dpmax;qmin;qmax;vis.layer
V1;In;A1;open;60;0;1500;stations
V2;In;A2;open;60;0;1500;stations
V3;B1;Out;open;60;0;1500;stations
V4;B2;Out;open;60;0;1500;stations

[regulator]
name;node1;node2;state;pinmin;poutmax;qmin;qmax;vis.layer
R1;A1;B1;active;25;16;0;1500;stations
R2;A2;B2;off;25;16;0;1500;stations

[subnet]
name;pins;vis.size.default;vis.layer.default;main_element.default
SUB;"In;Out";20;stations;R1
