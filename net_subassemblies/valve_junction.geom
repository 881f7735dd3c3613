# Valve junction: three lines that can be parted from one another.
[node]
name;x;y
A;-200;0
B;200;0
C;0;-200
M;0;0

[valve]
name;node1;node2;state
VA;A;M;open
VB;M;B;open
VC;M;C;open

[subnet]
name;pins;vis.size.default;main_element.default
SUB;"A;B;C";20;VA
