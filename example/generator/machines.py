"""Machine data: a map for every compressor that fits what it is asked for, and limits for every drive."""

import math

from . import hydrogen
from .scenarios import units_to_m

NOMINAL_SPEED = 8000.0  # 1/min
SPEEDS = (2800, 4000, 5000, 6000, 7000, 8000, 9000)
LARGEST_PART = 1.2  # of the nominal flow at a speed; machines choke at 1.3
PISTONS = {"CS_Rimpar_C1"}  # little head, and a flow that changes much from season to season
PISTON_SPEEDS = (120, 500)
PISTON_NOMINAL_SPEED = 420.0
PISTON_EFFICIENCY = 0.86
COEFFICIENTS = [f"power{i}" for i in range(1, 10)] + [f"energy{i}" for i in range(1, 4)]


class Map:
    """Head and efficiency of a machine around its design point, over speed and flow as parts of their nominal values."""

    def __init__(self, compressor, design):
        self.flow, self.head = design
        self.piston = compressor in PISTONS

    def head_at(self, turn, flow):
        return self.head * (1.3 * turn**2 - 0.2 * turn * flow - 0.1 * flow**2)

    def working_point(self, flow, head):
        """Speed in 1/min and efficiency at a flow in m3/s and a head in kJ/kg."""
        part = flow / self.flow
        if self.piston:
            return PISTON_NOMINAL_SPEED * part, PISTON_EFFICIENCY
        turn = (0.2 * part + math.sqrt(0.04 * part**2 + 5.2 * (0.1 * part**2 + head / self.head))) / 2.6
        return NOMINAL_SPEED * turn, efficiency(turn, part)


def efficiency(turn, flow):
    return 0.83 - 0.4 * (flow - turn) ** 2 - 0.05 * (turn - 1.0) ** 2


def design(net, outcomes):
    """The map of every compressor, designed for flow and head of the scenario that asks for the largest head."""
    maps = {}
    for station in net.stations.values():
        for compressor in station["compressors"]:
            element, best, asked = net.elements[compressor], (2.0, 60.0), []
            for outcome in outcomes.values():
                m = units_to_m(outcome.flows[compressor])
                p1, p2 = outcome.pressures[element["node1"]], outcome.pressures[element["node2"]]
                if m > 0.0 and p2 > p1:
                    temperature = outcome.temperatures[element["node1"]]
                    point = (m / hydrogen.density(p1, temperature), hydrogen.head(p1, p2, temperature))
                    best = max(best, point, key=lambda one: one[1])
                    asked.append(point)
            maps[compressor] = Map(compressor, _wide_enough(best, asked))
    return maps


def _wide_enough(best, asked):
    """The design point, with a flow at which no other scenario comes near the choke line."""
    flow, head = best
    for _ in range(20):
        for other, lift in asked:
            part = other / flow
            turn = (0.2 * part + math.sqrt(0.04 * part**2 + 5.2 * (0.1 * part**2 + lift / head))) / 2.6
            flow = max(flow, flow * part / turn / LARGEST_PART)
    return float(f"{flow:.5g}"), float(f"{head:.5g}")


def _points(name, chart):
    for speed in SPEEDS:
        turn = speed / NOMINAL_SPEED
        for part in (0.55, 0.7, 0.85, 1.0, 1.15, 1.3):
            flow = turn * part
            yield "points", (name, speed, f"{chart.flow * flow:.7g}", f"{chart.head_at(turn, flow):.7g}",
                             f"{efficiency(turn, flow):.6g}")
        flow = turn * 0.5
        yield "surge points", (name, speed, f"{chart.flow * flow:.7g}", f"{chart.head_at(turn, flow):.7g}")


def _piston(compressor, drive, flow, head):
    """Displacement in m3 a turn, torque in kNm for a fifth more than the drive gives at its nominal speed."""
    torque = 1.2 * 1000.0 * drive["powermax"] / (2.0 * math.pi * PISTON_NOMINAL_SPEED / 60.0)
    ratio = 1.6 if head < 250.0 else 2.2
    return (compressor, drive["machine"], *PISTON_SPEEDS, f"{flow * 60.0 / PISTON_NOMINAL_SPEED:.4g}", f"{torque:.4g}",
            ratio, PISTON_EFFICIENCY)


def write(path, net, maps):
    tables = {"turbo compressor": ["name;drive;speedmin;speedmax"], "points": ["name;speed;flow;head;efficiency"],
              "surge points": ["name;speed;flow;head"],
              "piston compressor": ["name;drive;speedmin;speedmax;displacement;torque;ratio;efficiency"],
              "gas turbine": ["name;" + ";".join(COEFFICIENTS)],
              "electric motor": ["name;" + ";".join(COEFFICIENTS)]}
    for station in net.stations.values():
        for compressor in station["compressors"]:
            drive = net.elements[net.elements[compressor]["drive"]]
            nominal = NOMINAL_SPEED
            chart = maps[compressor]
            if compressor in PISTONS:
                nominal = PISTON_NOMINAL_SPEED
                tables["piston compressor"].append(";".join(map(str, _piston(compressor, drive, chart.flow, chart.head))))
            else:
                tables["turbo compressor"].append(f"{compressor};{drive['machine']};{SPEEDS[0]};{SPEEDS[-1]}")
                for table, row in _points(compressor, chart):
                    tables[table].append(";".join(map(str, row)))
            top = 1000.0 * drive["powermax"]
            turbine = drive["kind"] == "gasTurbine"
            # Proportional to the speed up to the nominal one, flat behind; a turbine gives less in warm air.
            power = [0.0, 1.5 * top / nominal, -0.5 * top / nominal**2] + [0.0] * 6
            if turbine:
                power[3] = -0.004 * top
            energy = [0.08 * top, 2.6, 0.0] if turbine else [0.01 * top, 1.04, 0.0]
            row = ";".join([drive["machine"]] + [f"{c:.6g}" if c else "" for c in power + energy])
            tables["gas turbine" if turbine else "electric motor"].append(row)
    order = ("turbo compressor", "points", "surge points", "piston compressor", "gas turbine", "electric motor")
    text = "\n\n".join(f"[{name}]\n" + "\n".join(tables[name]) for name in order)
    path.write_text("# Machines of the compressor stations, fictional. Speeds 1/min, flows m3/s, heads kJ/kg, powers kW.\n"
                    + text + "\n", encoding="utf-8")
