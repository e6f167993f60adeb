// A quarter of the cross-section of a tube, in mm. The wall has two halves, so that there are nodes on the circle
// between them.
inner = <entry>inner radius</entry>;
wall = <entry>wall</entry>;
size = <entry>mesh size</entry>;
middle = inner + wall / 2;
outer = inner + wall;

Point(1) = {0, 0, 0};
Point(2) = {inner, 0, 0, size};
Point(3) = {middle, 0, 0, size};
Point(4) = {outer, 0, 0, size};
Point(5) = {0, outer, 0, size};
Point(6) = {0, middle, 0, size};
Point(7) = {0, inner, 0, size};
Circle(1) = {2, 1, 7};
Circle(2) = {3, 1, 6};
Circle(3) = {4, 1, 5};
Line(4) = {2, 3};
Line(5) = {3, 4};
Line(6) = {5, 6};
Line(7) = {6, 7};
Curve Loop(1) = {4, 2, 7, -1};
Plane Surface(1) = {1};
Curve Loop(2) = {5, 3, 6, -2};
Plane Surface(2) = {2};
Physical Surface("wall") = {1, 2};

Mesh.ElementOrder = 2;
// A set of nodes for each curve: Line1 is the inner circle, Line2 the middle one, Line3 the outer one.
Mesh.SaveGroupsOfNodes = -1;
