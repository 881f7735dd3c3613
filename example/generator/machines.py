"""Machine data: a map for every compressor that fits what it is asked for, and limits for every drive."""

import math

from .hydraulics import MOLAR_MASS, density
from .scenarios import units_to_m

ISENTROPIC_EXPONENT = 1.405  # of hydrogen
NOMINAL_SPEED = 8000.0  # 1/min
SPEEDS = (4000, 5000, 6000, 7000, 8000, 9000)
PISTONS = {"CS_Rimpar_C1"}  # little head, and a flow that changes much from season to season
PISTON_SPEEDS = (120, 500)
PISTON_NOMINAL_SPEED = 420.0
PISTON_EFFICIENCY = 0.86
COEFFICIENTS = [f"power{i}" for i in range(1, 10)] + [f"energy{i}" for i in range(1, 4)]


def _head(p1, p2, temperature):
    """Adiabatic head in kJ/kg by the density at the inlet."""
    k = (ISENTROPIC_EXPONENT - 1.0) / ISENTROPIC_EXPONENT
    return p1 * 100.0 / density(p1, temperature) / k * ((p2 / p1) ** k - 1.0)


def _design(net, compressor, outcomes):
    """Flow and head of the scenario that asks for the largest head."""
    element, best = net.elements[compressor], (2.0, 60.0)
    for outcome in outcomes.values():
        m = units_to_m(outcome.flows[compressor])
        p1, p2 = outcome.pressures[element["node1"]], outcome.pressures[element["node2"]]
        if m > 0.0 and p2 > p1:
            temperature = outcome.temperatures[element["node1"]]
            best = max(best, (m / density(p1, temperature), _head(p1, p2, temperature)), key=lambda point: point[1])
    return best


def _points(name, flow0, head0):
    for speed in SPEEDS:
        turn = speed / NOMINAL_SPEED
        for part in (0.55, 0.7, 0.85, 1.0, 1.15, 1.3):
            flow = flow0 * turn * part
            head = head0 * (1.3 * turn**2 - 0.2 * turn * flow / flow0 - 0.1 * (flow / flow0) ** 2)
            efficiency = 0.83 - 0.4 * (part - 1.0) ** 2 - 0.05 * (turn - 1.0) ** 2
            yield "points", (name, speed, f"{flow:.5g}", f"{head:.5g}", f"{efficiency:.4g}")
        flow = flow0 * turn * 0.5
        head = head0 * (1.3 * turn**2 - 0.2 * turn * flow / flow0 - 0.1 * (flow / flow0) ** 2)
        yield "surge points", (name, speed, f"{flow:.5g}", f"{head:.5g}")


def _piston(compressor, drive, flow, head):
    """Displacement in m3 a turn, torque in kNm for a fifth more than the drive gives at its nominal speed."""
    torque = 1.2 * 1000.0 * drive["powermax"] / (2.0 * math.pi * PISTON_NOMINAL_SPEED / 60.0)
    ratio = 1.6 if head < 250.0 else 2.2
    return (compressor, drive["machine"], *PISTON_SPEEDS, f"{flow * 60.0 / PISTON_NOMINAL_SPEED:.4g}", f"{torque:.4g}",
            ratio, PISTON_EFFICIENCY)


def write(path, net, outcomes):
    tables = {"turbo compressor": ["name;drive;speedmin;speedmax"], "points": ["name;speed;flow;head;efficiency"],
              "surge points": ["name;speed;flow;head"],
              "piston compressor": ["name;drive;speedmin;speedmax;displacement;torque;ratio;efficiency"],
              "gas turbine": ["name;" + ";".join(COEFFICIENTS)],
              "electric motor": ["name;" + ";".join(COEFFICIENTS)]}
    for station in net.stations.values():
        for compressor in station["compressors"]:
            drive = net.elements[net.elements[compressor]["drive"]]
            nominal = NOMINAL_SPEED
            design = _design(net, compressor, outcomes)
            if compressor in PISTONS:
                nominal = PISTON_NOMINAL_SPEED
                tables["piston compressor"].append(";".join(map(str, _piston(compressor, drive, *design))))
            else:
                tables["turbo compressor"].append(f"{compressor};{drive['machine']};{SPEEDS[0]};{SPEEDS[-1]}")
                for table, row in _points(compressor, *design):
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


assert math.isclose(MOLAR_MASS, 2.016), "the isentropic exponent is that of hydrogen"
