# Metering station: the meter between two valves, with a by-pass.
[node]
name;x;y
In;-200;0
A;-100;0
B;100;0
Out;200;0

[valve]
name;node1;node2;state
V1;In;A;open
V2;B;Out;open
BP;In;Out;closed

[resistor]
name;node1;node2;zeta;diameter
M;A;B;5;800

[subnet]
name;pins;vis.size.default;main_element.default
SUB;"In;Out";20;M
