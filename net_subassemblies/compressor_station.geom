# Compressor station: two units in parallel, cooler, flap trap, by-pass. Lengths in metres along the way from In to Out.
[node]
name;x;y;vis.layer;height;pmin;pmax;kind
In;-1200;0;stations;;25;84;innode
S1;-600;400;stations;;25;84;innode
S2;-600;1200;stations;;25;84;innode
H;200;800;stations;;25;84;innode
K;800;800;stations;;25;84;innode
Out;1400;0;stations;;25;84;innode

[drive]
name;x;y;gasnode;driven;kind;vis.layer;powermax
D1;-40;680;In;C1;electricMotor;stations;20
D2;-40;920;In;C2;electricMotor;stations;20

[valve]
name;node1;node2;state;dpmax;qmin;qmax;vis.layer
V1;In;S1;open;60;-4000;4000;stations
V2;In;S2;open;60;-4000;4000;stations
B;In;Out;closed;60;-8000;8000;stations

[compressor]
name;node1;node2;drive;pinmin;poutmax;dpin;dpout;qmin;qmax;vis.layer
C1;S1;H;D1;25;84;0;0;0;4000;stations
C2;S2;H;D2;25;84;0;0;0;4000;stations

[cooler]
name;node1;node2;tset;qmin;qmax;vis.layer
W;H;K;35;0;8000;stations

[flaptrap]
name;node1;node2;qmin;qmax;vis.layer
F;K;Out;0;8000;stations

[subnet]
name;pins;vis.size.default;vis.layer.default;main_element.default
SUB;"In;Out";24;stations;C1
