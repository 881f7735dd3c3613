# What stands for a subnet whose own template cannot be used: a connection that costs nothing.
[node]
name;x;y
A;-100;0
B;100;0

[shortcut]
name;node1;node2
S;A;B

[subnet]
name;pins
SUB;"A;B"
