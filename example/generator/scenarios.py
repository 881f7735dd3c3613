"""The three scenarios: what is delivered and taken, how the stations run, and the steady flow that results."""

import math
from dataclasses import dataclass

from . import hydrogen, places
from .hydraulics import (
    COMPRESSOR_EFFICIENCY, HEAT_CAPACITY, LOWER_HEATING_VALUE, SOIL_TEMPERATURE, TURBINE_EFFICIENCY,
    WARMING_BY_EXPANSION, compression_power, solve, whole_units,
)

# Share of the winter peak by class of node, and the pressure at the reference node in bar.
SCENARIOS = {
    "S1": {"title": "summer, caverns are filled", "reference": 65.0, "discharge": -9.0, "city": 0.12, "industry": 0.90,
           "import": 0.72, "terminal": 0.70, "electrolysis": 1.0},
    "S3": {"title": "spring and autumn", "reference": 65.0, "discharge": -5.0, "city": 0.45, "industry": 0.95,
           "import": 0.84, "terminal": 0.80, "electrolysis": 1.2},
    "S5": {"title": "peak winter day, caverns are emptied", "reference": 76.0, "discharge": 0.0, "city": 1.0,
           "industry": 1.0, "import": 1.0, "terminal": 1.0, "electrolysis": 0.7},
}

# One unit of flow. It is 0.000036 x 1000 m3/h and 0.000000899 kg/s, so that a whole number of it is a short decimal
# number in both, and what is written balances in both.
UNIT_KG_PER_S = 8.99e-7
MAX_RATIO = 1.45
MIN_RATIO = 1.03  # below it a station is by-passed
START_RATIO = 1.3  # without compression the south would run out of pressure


@dataclass
class Work:
    """Of a compressor: head in kJ/kg, shaft power in MW, speed in 1/min where its map is known."""

    head: float = 0.0
    efficiency: float = 0.0
    power: float = 0.0
    speed: float = 0.0


@dataclass
class Outcome:
    """A solved scenario; flows and offtakes in whole units, temperatures in K."""

    pressures: dict
    flows: dict
    offtakes: dict
    temperatures: dict
    machines: dict  # what every compressor does, see Work
    ratios: dict  # by station; 1.0 stands for by-passed


def units_to_q(units):
    """1000 m3/h at norm conditions."""
    return units * 36 / 1_000_000


def units_to_m(units):
    """kg/s"""
    return units * 899 / 1_000_000_000


def run(net, name, maps=None):
    """Finds the ratios that bring the stations near their discharge pressures, then the final flow. Without maps every
    compressor has the same efficiency."""
    settings = SCENARIOS[name]
    ratios = dict.fromkeys(net.stations, START_RATIO)
    fuel = dict.fromkeys(net.stations, 0.0)
    resting = set()
    for turn in range(30):
        offtakes = _offtakes(net, settings, fuel)
        pressures, flows = _steady(net, settings, ratios, offtakes)
        fuel = {s: _fuel(net, net.stations[s], flows, pressures, ratios[s], maps) for s in net.stations}
        if turn < 24:
            _turn_ratios(net, settings, pressures, flows, ratios, resting, turn)
    rounded = whole_units(net.edges, {k: m / UNIT_KG_PER_S for k, m in flows.items()}, offtakes)
    # To the digits that are written, so that who reads them computes the same.
    pressures = {node: round(p, 8) for node, p in pressures.items()}
    temperatures = _temperatures(net, rounded, offtakes, pressures, maps)
    temperatures = {node: round(t, 3) for node, t in temperatures.items()}
    work = {c: _work(net, c, units_to_m(rounded[c]), pressures, temperatures[net.elements[c]["node1"]], maps)
            for station in net.stations.values() for c in station["compressors"]}
    return Outcome(pressures, rounded, offtakes, temperatures, work, ratios)


def _offtakes(net, settings, fuel):
    """Whole units by node; the caverns close the balance."""
    result = {}
    for node, (flow, kind) in net.offtakes.items():
        if kind not in ("storage", "fuel"):
            result[node] = round(flow * settings[kind] / UNIT_KG_PER_S)
    for name, station in net.stations.items():
        if station["turbine"]:
            result[station["fuel"]] = round(fuel[name] / UNIT_KG_PER_S)
    missing = -sum(result.values())
    caverns = [f"S_{name}" for name in places.STORAGES]
    for name, share in places.STORAGES.items():
        result[f"S_{name}"] = round(missing * share)
    result[caverns[0]] += missing - sum(result[c] for c in caverns)
    return result


def _steady(net, settings, ratios, offtakes):
    for name, station in net.stations.items():
        running = ratios[name] > 1.0
        for edge in net.edges:
            if edge.name in station["compressors"]:
                edge.law, edge.value = ("ratio", ratios[name]) if running else ("shut", 0.0)
            elif edge.name == station["bypass"]:
                edge.law = "shut" if running else "friction"
                edge.value = 0.0 if running else 0.002
    demand = {node: units * UNIT_KG_PER_S for node, units in offtakes.items()}
    return solve(net.nodes(), net.edges, demand, "N_" + places.REFERENCE_NODE, settings["reference"])


def _turn_ratios(net, settings, pressures, flows, ratios, resting, turn):
    """Moves every ratio part of the way to the discharge pressure aimed at; the last turns only round."""
    for name, station in net.stations.items():
        if name in resting:
            continue
        through = sum(flows[c] for c in station["compressors"]) if ratios[name] > 1.0 else flows[station["bypass"]]
        wanted = (station["target"] + settings["discharge"]) / pressures[station["in"]]
        ratio = ratios[name] + 0.4 * (min(max(wanted, 1.0), MAX_RATIO) - ratios[name])
        if turn > 8 and (ratio < MIN_RATIO or through <= 0.5):
            resting.add(name)
            ratio = 1.0
        ratios[name] = round(max(ratio, 1.0), 3)


def _work(net, compressor, m, pressures, temperature, maps):
    """What a compressor does with m kg/s that enter it with a temperature."""
    element = net.elements[compressor]
    p1, p2 = pressures[element["node1"]], pressures[element["node2"]]
    if m <= 0.0 or p2 <= p1:
        return Work()
    head = hydrogen.head(p1, p2, temperature)
    speed, efficiency = 0.0, COMPRESSOR_EFFICIENCY
    if maps:
        speed, efficiency = maps[compressor].working_point(m / hydrogen.density(p1, temperature), head)
    return Work(head, efficiency, compression_power(m, head, efficiency), speed)


def _fuel(net, station, flows, pressures, ratio, maps):
    """kg/s of the station's turbines; nothing where motors drive it."""
    if not station["turbine"] or ratio <= 1.0:
        return 0.0
    power = sum(_work(net, c, flows[c], pressures, SOIL_TEMPERATURE, maps).power for c in station["compressors"])
    return power / TURBINE_EFFICIENCY / LOWER_HEATING_VALUE


def _directed(net, flows):
    """(edge, from, to, kg/s) of every edge with flow, in the direction of the flow."""
    for edge in net.edges:
        m = units_to_m(flows[edge.name])
        if m > 0.0:
            yield edge, edge.node1, edge.node2, m
        elif m < 0.0:
            yield edge, edge.node2, edge.node1, -m


def _temperatures(net, flows, offtakes, pressures, maps):
    """Mixes the gas at every node until nothing changes any more; gas at rest takes the temperature of the soil."""
    temperatures = dict.fromkeys(net.nodes(), SOIL_TEMPERATURE)
    directed = list(_directed(net, flows))
    supplies = {node: (-units_to_m(units), net.elements[node]["tset"] + 273.15)
                for node, units in offtakes.items() if units < 0}
    for _ in range(300):
        heat = {node: [0.0, 0.0] for node in temperatures}
        for node, (m, temperature) in supplies.items():
            heat[node] = [m, m * temperature]
        for edge, start, end, m in directed:
            outlet = _outlet_temperature(net, edge.name, temperatures[start], m, pressures[start], pressures[end], pressures,
                                         maps)
            heat[end][0] += m
            heat[end][1] += m * outlet
        mixed = {node: h / m if m > 0.0 else SOIL_TEMPERATURE for node, (m, h) in heat.items()}
        change = max(abs(mixed[node] - temperatures[node]) for node in mixed)
        temperatures = mixed
        if change < 1.0e-7:
            break
    return temperatures


def _outlet_temperature(net, name, inlet, m, first, last, pressures, maps):
    """K at the end of an edge that m kg/s enter with inlet; first and last are the pressures along the flow."""
    element = net.elements[name]
    word = element["obj_type"]
    if word == "pipe":
        surface = math.pi * element["diameter"] / 1000.0 * element["length"]
        return SOIL_TEMPERATURE + (inlet - SOIL_TEMPERATURE) * math.exp(-surface * element["htc"] / (m * HEAT_CAPACITY))
    if word == "compressor":
        work = _work(net, name, m, pressures, inlet, maps)
        return hydrogen.outlet_temperature(first, last, inlet, work.efficiency) if work.head > 0.0 else inlet
    if word == "cooler":
        return min(inlet, element["tset"] + 273.15)
    if word == "heater":
        return max(inlet, element["tset"] + 273.15)
    return inlet + WARMING_BY_EXPANSION * (first - last) if word == "regulator" else inlet
