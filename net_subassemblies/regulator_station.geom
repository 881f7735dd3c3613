# Regulator station: two lines in parallel, one of them in reserve, each between valves.
[node]
name;x;y
In;-300;0
A1;-150;100
A2;-150;-100
B1;150;100
B2;150;-100
Out;300;0

[valve]
name;node1;node2;state
V1;In;A1;open
V2;In;A2;open
V3;B1;Out;open
V4;B2;Out;open

[regulator]
name;node1;node2;state
R1;A1;B1;active
R2;A2;B2;off

[subnet]
name;pins;vis.size.default;main_element.default
SUB;"In;Out";24;R1
