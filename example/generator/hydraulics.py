"""Steady flow of hydrogen in a network of pipes and stations.

Unknown are the squared pressures of the nodes (bar²) and the mass flows of the edges (kg/s). A pipe obeys
p1² - p2² = K m |m| with the friction factor of the fully rough pipe (Nikuradse), the gas at soil temperature and one
compressibility for all. Newton's method solves all equations at once.
"""

import math
from dataclasses import dataclass

import numpy as np

RHO_NORM = 0.0899  # kg/m3
CALORIFIC_VALUE = 12.7  # MJ/m3
MOLAR_MASS = 2.016  # kg/kmol
GAS_CONSTANT = 8314.4621 / MOLAR_MASS  # J/(kg K)
COMPRESSIBILITY = 1.035  # of hydrogen near 55 bar and 283 K, taken for the friction law
SOIL_TEMPERATURE = 283.15  # K
HEAT_CAPACITY = 14300.0  # J/(kg K)
COMPRESSOR_EFFICIENCY = 0.80  # before there are maps
TURBINE_EFFICIENCY = 0.36
LOWER_HEATING_VALUE = 120.0  # MJ/kg
WARMING_BY_EXPANSION = 0.035  # K/bar; hydrogen gets warmer when its pressure drops

# Below this flow in kg/s the friction turns linear; Newton's method would stall at the flat root of m |m| otherwise.
LINEAR_FLOW = 0.05


@dataclass
class Edge:
    """An edge as the solver sees it: law is "friction" (value K), "shut", "ratio" (p2/p1) or "outlet" (p2 in bar)."""

    name: str
    node1: str
    node2: str
    law: str
    value: float = 0.0


def friction_coefficient(length, diameter, roughness):
    """K in bar² s²/kg² of a pipe; length in m, diameter and roughness in mm."""
    factor = (2.0 * math.log10(3.71 * diameter / roughness)) ** -2
    d = diameter / 1000.0
    k = factor * length / d**5 * 16.0 / math.pi**2 * COMPRESSIBILITY * GAS_CONSTANT * SOIL_TEMPERATURE
    return k / 1.0e10


def _residual_and_slope(edge, m, square1, square2):
    """Residual of the edge's equation and its derivatives by m, p1² and p2²."""
    if edge.law == "shut":
        return m, 1.0, 0.0, 0.0
    if edge.law == "ratio":
        return square2 - edge.value**2 * square1, 0.0, -(edge.value**2), 1.0
    if edge.law == "outlet":
        return square2 - edge.value**2, 0.0, 0.0, 1.0
    root = math.hypot(m, LINEAR_FLOW)
    return square1 - square2 - edge.value * m * root, -edge.value * (root + m * m / root), 1.0, -1.0


def solve(nodes, edges, offtake, reference, reference_pressure):
    """Pressures in bar and flows in kg/s by name.

    offtake holds what leaves the network at a node in kg/s (negative: enters) and must sum to zero; the reference node
    keeps reference_pressure. Raises ArithmeticError where no steady state with these settings is found.
    """
    index = {name: i for i, name in enumerate(nodes)}
    ends = [(index[e.node1], index[e.node2]) for e in edges]
    n, total = len(nodes), len(nodes) + len(edges)
    state = np.concatenate([np.full(n, reference_pressure**2), np.full(len(edges), 1.0)])
    fixed = index[reference]
    for _ in range(200):
        residual = np.zeros(total)
        matrix = np.zeros((total, total))
        residual[:n] = [offtake.get(name, 0.0) for name in nodes]
        for k, (edge, (a, b)) in enumerate(zip(edges, ends)):
            m = state[n + k]
            residual[a] += m
            residual[b] -= m
            matrix[a, n + k] += 1.0
            matrix[b, n + k] -= 1.0
            residual[n + k], matrix[n + k, n + k], by_a, by_b = _residual_and_slope(edge, m, state[a], state[b])
            matrix[n + k, a] += by_a
            matrix[n + k, b] += by_b
        matrix[fixed, :] = 0.0
        matrix[fixed, fixed] = 1.0
        residual[fixed] = state[fixed] - reference_pressure**2
        step = np.linalg.solve(matrix, residual)
        state -= step * min(1.0, 400.0 / np.max(np.abs(step[n:])))
        if np.max(np.abs(step)) < 1.0e-9:
            break
    else:
        raise ArithmeticError("no steady state found")
    if np.min(state[:n]) <= 0.0:
        raise ArithmeticError("pressure falls to nothing at " + nodes[int(np.argmin(state[:n]))])
    pressures = {name: math.sqrt(state[i]) for name, i in index.items()}
    return pressures, {edge.name: float(state[n + k]) for k, edge in enumerate(edges)}


def whole_units(edges, flows, offtake):
    """Rounds flows to whole numbers that balance offtake (whole numbers by node, sum zero) at every node exactly.

    Flows off a spanning forest are rounded; those on it follow from the balance, from the leaves inwards.
    """
    rounded, tree, parent = {}, [], {}

    def root(node):
        while parent.get(node, node) != node:
            node = parent[node]
        return node

    for edge in edges:
        a, b = root(edge.node1), root(edge.node2)
        if edge.law != "shut" and a != b:
            parent[a] = b
            tree.append(edge)
        else:
            rounded[edge.name] = 0 if edge.law == "shut" else round(flows[edge.name])
    surplus = {}
    for node, value in offtake.items():
        surplus[node] = surplus.get(node, 0) - value
    by_name = {edge.name: edge for edge in edges}
    for name, value in rounded.items():
        surplus[by_name[name].node1] = surplus.get(by_name[name].node1, 0) - value
        surplus[by_name[name].node2] = surplus.get(by_name[name].node2, 0) + value
    _flows_on_tree(tree, surplus, rounded)
    return rounded


def _flows_on_tree(tree, surplus, rounded):
    at = {}
    for edge in tree:
        at.setdefault(edge.node1, set()).add(edge.name)
        at.setdefault(edge.node2, set()).add(edge.name)
    by_name = {edge.name: edge for edge in tree}
    leaves = sorted(node for node, names in at.items() if len(names) == 1)
    while leaves:
        node = leaves.pop()
        if not at[node]:
            continue
        edge = by_name[at[node].pop()]
        outwards = edge.node1 == node
        other = edge.node2 if outwards else edge.node1
        value = surplus.pop(node, 0)
        rounded[edge.name] = value if outwards else -value
        surplus[other] = surplus.get(other, 0) + value
        at[other].discard(edge.name)
        if len(at[other]) == 1:
            leaves.append(other)


def compression_power(flow, head, efficiency):
    """Shaft power in MW of a flow in kg/s with a head in kJ/kg."""
    return flow * head / efficiency / 1000.0
