"""Builds the elements of DE_H2 from its places, routes and stations."""

import math

from . import places, routes
from .hydraulics import CALORIFIC_VALUE, MOLAR_MASS, RHO_NORM, Edge, friction_coefficient
from .hydrogen import density
from .projection import forward, great_circle, inverse

DETOUR = 1.1  # a pipe is that much longer than the great circle
ROUGHNESS = 0.05  # mm
TRANSMISSION = (25.0, 84.0)
REGIONAL = (8.0, 16.0)
CRITICAL_POINT = {"pcrit": 12.964, "tcrit": 33.145}  # bar, K
FUEL_GAS = (20.0, 30.0)
REGIONAL_SET_POINT = 15.6  # bar, behind the regulators
FUEL_SET_POINT = 25.0
KG_PER_S_TO_Q = 3.6 / RHO_NORM  # 1000 m3/h of a kg/s

# What stations take away, as K in bar² s²/kg²
STATION_FRICTION = {"valve": 0.002, "cooler": 0.004, "heater": 0.004, "flaptrap": 0.003, "resistor": 0.012, "shortcut": 0.0}

# What is a subnet, made of a template when the network is opened: compressor stations with two electric machines each,
# the entry to a region, the metering run of a terminal, and a place where three lines meet.
MARKED_STATIONS = ("Werne", "Radeland", "Reckrod")
REGULATOR_STATIONS = ("München",)
METERING_STATIONS = ("Brunsbüttel",)
VALVE_JUNCTIONS = ("Schweinfurt",)

METERED_ENTRIES = {"Emden": "shortcut", "Lubmin": "shortcut", "Elten": "shortcut", "Waidhaus": "shortcut",
                   "Ellund": "shortcut", "Wilhelmshaven": "resistor", "Stade": "resistor", "Brunsbüttel": "resistor"}


class Network:
    """The elements by name, as they are written, and the edges as the solver sees them."""

    def __init__(self):
        self.elements = {}
        self.edges = []
        self.offtakes = {}  # node: (kg/s at the winter peak, its class: city, industry, import, storage, ...)
        self.stations = {}  # name: what a station's control has to know
        self.inside = {}  # name of an element inside of a subnet: the name that it gets when it is made of the template

    def nodes(self):
        return [name for name, e in self.elements.items() if e["obj_type"] == "node"]

    def place(self, node):
        element = self.elements[node]
        return element["lon"], element["lat"]

    def add_node(self, name, position, layer="backbone", bounds=TRANSMISSION):
        x, y = forward(*position)
        self.elements[name] = {
            "obj_type": "node", "x": round(x, 1), "y": round(y, 1), "lon": round(position[0], 6),
            "lat": round(position[1], 6), "kind": "innode", "vis.layer": layer, "height": terrain(*position),
            "pmin": bounds[0], "pmax": bounds[1],
        }
        return name

    def add_node_beside(self, name, node, dx, dy, layer, bounds=TRANSMISSION):
        """A node dx metres east and dy metres north of another."""
        element = self.elements[node]
        position = inverse(element["x"] + dx, element["y"] + dy, self.place(node))
        return self.add_node(name, position, layer, bounds)

    def add_offtake(self, node, flow, kind):
        """flow in kg/s at the winter peak, positive where gas leaves; a storage goes both ways."""
        element = self.elements[node]
        self.offtakes[node] = (flow, kind)
        limit = round(1.25 * abs(flow) * KG_PER_S_TO_Q, 0)
        if kind in ("city", "industry", "fuel"):
            element.update({"kind": "sink", "qmin": 0.0, "qmax": limit})
            if element["vis.layer"] == "backbone":
                element["vis.layer"] = "exits"
            return
        # What is supplied counts negative, as the set flows do.
        element.update({"kind": "source", "qmin": -limit, "qmax": limit if kind == "storage" else 0.0, "tset": 15.0,
                        "hs": CALORIFIC_VALUE, "rhon": RHO_NORM, "molarmass": MOLAR_MASS, **CRITICAL_POINT})
        element["vis.layer"] = "storage" if kind == "storage" else "entries"

    def add_edge(self, name, word, ends, layer, law="friction", value=None, **properties):
        self.elements[name] = {"obj_type": word, "node1": ends[0], "node2": ends[1], "vis.layer": layer, **properties}
        if value is None:
            value = STATION_FRICTION.get(word, 0.0)
        self.edges.append(Edge(name, ends[0], ends[1], law, value))

    def add_pipe(self, name, ends, diameter, layer, pmax):
        length = round(DETOUR * great_circle(self.place(ends[0]), self.place(ends[1])), 1)
        limit = round(25.0 * density(pmax, 283.15) * math.pi / 4 * (diameter / 1000) ** 2 * KG_PER_S_TO_Q, 0)
        self.add_edge(name, "pipe", ends, layer, value=friction_coefficient(length, diameter, ROUGHNESS), length=length,
                      diameter=float(diameter), roughness=ROUGHNESS, htc=2.0, pmax=pmax, qmin=-limit, qmax=limit)


def terrain(lon, lat):
    """A rough height in m: the plain in the north, rising to the Alps, with the valley of the Rhine cut in."""
    rise = 8.0 + 620.0 / (1.0 + math.exp((49.9 - lat) * -1.1))
    rhine = math.exp(-(((lon - 7.6 - 0.25 * math.sin((lat - 48.0) * 1.2)) / 0.8) ** 2))
    return round(rise * (1.0 - 0.6 * rhine), 0)


def build():
    net = Network()
    for name, position in places.PLACES.items():
        net.add_node("N_" + name, position)
    for name in places.STATIONS:
        _add_station(net, name)
    _add_backbone(net)
    _add_closed_links(net)
    _add_entries(net)
    _add_storages(net)
    for kind, sinks in (("city", places.CITIES), ("industry", places.INDUSTRIES)):
        for name, flow in sinks.items():
            net.add_offtake("N_" + name, flow, kind)
    for name, region in places.REGIONS.items():
        _add_region(net, name, *region)
    for name in MARKED_STATIONS:
        _add_marked_station(net, name)
    for name in VALVE_JUNCTIONS:
        _add_valve_junction(net, name)
    _add_texts(net)
    return net


def _stop(stop):
    if stop[-1] in "<>":
        return f"CS_{stop[:-1]}_{'In' if stop[-1] == '<' else 'Out'}"
    return "N_" + stop


def _position(stop):
    name = stop.rstrip("<>")
    return places.PLACES[name] if name in places.PLACES else places.STATIONS[name][:2]


def _axis(name):
    """Unit vector from what lies before a station to what lies behind it."""
    before = [forward(*_position(b if a == name + "<" else a)) for a, b, *_ in routes.pipes() if name + "<" in (a, b)]
    behind = [forward(*_position(b if a == name + ">" else a)) for a, b, *_ in routes.pipes() if name + ">" in (a, b)]
    dx, dy = (sum(p[i] for p in behind) / len(behind) - sum(p[i] for p in before) / len(before) for i in (0, 1))
    length = math.hypot(dx, dy)
    return dx / length, dy / length


def _add_station(net, name):
    """Inlet, machines side by side, cooler, flap trap, outlet; the by-pass runs straight from inlet to outlet."""
    lon, lat, machines, drive, target = places.STATIONS[name]
    x, y = forward(lon, lat)
    ux, uy = _axis(name)
    prefix = f"CS_{name}_"

    def node(suffix, along, across, bounds=TRANSMISSION):
        position = inverse(x + ux * along - uy * across, y + uy * along + ux * across, (lon, lat))
        return net.add_node(prefix + suffix, position, "stations", bounds)

    inlet, header, cooled, outlet = node("In", -1200, 0), node("H", 200, 800), node("K", 800, 800), node("Out", 1400, 0)
    turbine = drive == "turbine"
    fuel = _add_fuel_line(net, prefix, inlet, node("Fuel", -1200, -700, FUEL_GAS)) if turbine else inlet
    compressors = []
    for i in range(1, machines + 1):
        suction = inlet
        if machines > 1:
            suction = node(f"S{i}", -600, 400 + 800 * (i - 1))
            net.add_edge(f"{prefix}V{i}", "valve", (inlet, suction), "stations", state="open", dpmax=60.0, qmin=-4000.0,
                         qmax=4000.0)
        compressors.append(f"{prefix}C{i}")
        _add_machine(net, compressors[-1], (suction, header), fuel, f"{'GT' if turbine else 'EM'}_{name}_{i}")
    net.add_edge(prefix + "W", "cooler", (header, cooled), "stations", tset=35.0, qmin=0.0, qmax=8000.0)
    net.add_edge(prefix + "F", "flaptrap", (cooled, outlet), "stations", qmin=0.0, qmax=8000.0)
    net.add_edge(prefix + "B", "valve", (inlet, outlet), "stations", state="closed", dpmax=60.0, qmin=-8000.0, qmax=8000.0)
    net.stations[name] = {"in": inlet, "out": outlet, "compressors": compressors, "bypass": prefix + "B", "fuel": fuel,
                          "target": target, "turbine": turbine}


def _add_fuel_line(net, prefix, inlet, fuel):
    net.add_edge(prefix + "FR", "regulator", (inlet, fuel), "stations", "outlet", FUEL_SET_POINT, pset=FUEL_SET_POINT,
                 state="active", pinmin=TRANSMISSION[0], poutmax=FUEL_GAS[1], qmin=0.0, qmax=50.0)
    net.add_offtake(fuel, 1.0, "fuel")
    return fuel


def _add_machine(net, name, ends, gasnode, machine):
    net.add_edge(name, "compressor", ends, "stations", "ratio", 1.0, drive="D_" + name, pinmin=TRANSMISSION[0],
                 poutmax=TRANSMISSION[1], dpin=0.0, dpout=0.0, qmin=0.0, qmax=4000.0)
    net.elements["D_" + name] = {"obj_type": "drive", "gasnode": gasnode, "driven": name,
                                 "kind": "gasTurbine" if machine.startswith("GT") else "electricMotor",
                                 "machine": machine, "vis.layer": "stations"}


def _add_backbone(net):
    for stop1, stop2, diameter, count in routes.pipes():
        for i in range(1, count + 1):
            name = f"P_{stop1.rstrip('<>')}_{stop2.rstrip('<>')}_{i}"
            net.add_pipe(name, (_stop(stop1), _stop(stop2)), diameter, "backbone", TRANSMISSION[1])


def _add_closed_links(net):
    for near, far, diameter in routes.CLOSED_LINKS:
        link = net.add_node_beside(f"N_{near}_Link", f"N_{near}", -1500, -600, "backbone")
        net.add_edge(f"V_{near}_{far}", "valve", (f"N_{near}", link), "backbone", "shut", state="closed", dpmax=60.0,
                     qmin=-2000.0, qmax=2000.0)
        net.add_pipe(f"P_{near}_{far}_1", (link, f"N_{far}"), diameter, "backbone", TRANSMISSION[1])


METERING_PREFIX = {"shortcut": "SC", "resistor": "RS"}


def _add_entries(net):
    for name, (flow, kind) in places.ENTRIES.items():
        node = "N_" + name
        if name in METERED_ENTRIES:
            entry = net.add_node_beside("E_" + name, node, 1600, 1200, "entries")
            word = METERED_ENTRIES[name]
            extra = {"zeta": 5.0, "diameter": 800.0} if word == "resistor" else {}
            if name in METERING_STATIONS:
                _add_metering_station(net, "MS_" + name, entry, node)
            else:
                net.add_edge(f"{METERING_PREFIX[word]}_{name}", word, (entry, node), "entries", qmin=-4000.0,
                             qmax=4000.0, **extra)
            node = entry
        net.add_offtake(node, -float(flow), kind)


def _add_storages(net):
    for name, share in places.STORAGES.items():
        node = "N_" + name
        valve = net.add_node_beside(f"S_{name}_Head", node, 900, -700, "storage")
        cavern = net.add_node_beside(f"S_{name}", node, 1800, -1400, "storage")
        net.add_edge(f"HT_{name}", "heater", (cavern, valve), "storage", tset=20.0, qmin=-4000.0, qmax=4000.0)
        net.add_edge(f"V_{name}_Storage", "valve", (valve, node), "storage", state="open", dpmax=60.0, qmin=-4000.0,
                     qmax=4000.0)
        net.add_offtake(cavern, -160.0 * share, "storage")


def _add_region(net, name, own, towns):
    node = "N_" + name
    gate = net.add_node_beside(f"R_{name}", node, 2000, -1200, "regional", REGIONAL)
    net.add_offtake(gate, own, "city")
    if name in REGULATOR_STATIONS:
        _add_regulator_station(net, "RG_" + name, node, gate)
    else:
        for i in (1, 2):
            _add_regulator(net, f"RG_{name}_{i}", (node, gate), i == 1)
    for town, lon, lat, flow, source in towns:
        sink = net.add_node(f"R_{town}", (lon, lat), "regional", REGIONAL)
        net.add_offtake(sink, flow, "city")
        start = f"R_{source or name}"
        net.add_pipe(f"P_{source or name}_{town}_1", (start, sink), 600 if not source else 400, "regional", REGIONAL[1])


def _add_regulator(net, name, ends, active):
    net.add_edge(name, "regulator", ends, "regional", "outlet" if active else "shut", REGIONAL_SET_POINT,
                 pset=REGIONAL_SET_POINT, state="active" if active else "off", pinmin=TRANSMISSION[0], poutmax=REGIONAL[1],
                 qmin=0.0, qmax=1500.0)


def _add_subnet(net, name, variant, pins, main_element, inside, size):
    """inside: from the names of elements to those that the template gives them."""
    (x0, y0), (x1, y1) = ((net.elements[p]["x"], net.elements[p]["y"]) for p in pins[:2])
    positions = [(net.elements[p]["x"], net.elements[p]["y"]) for p in pins]
    net.elements[name] = {
        "obj_type": "subnet", "x": round(sum(x for x, _ in positions) / len(pins), 1),
        "y": round(sum(y for _, y in positions) / len(pins), 1), "variant": variant, "pins": ";".join(pins),
        "main_element": main_element, "width": round(math.hypot(x1 - x0, y1 - y0), 1),
        "rotation": round(math.degrees(math.atan2(y1 - y0, x1 - x0)), 3), "vis.size": size, "vis.layer": "stations",
    }
    net.inside.update(inside)


def _add_marked_station(net, name):
    prefix = f"CS_{name}_"
    pins = net.stations[name]["in"], net.stations[name]["out"]
    inside = {}
    for element in net.elements:
        if element.startswith("D_" + prefix):
            inside[element] = prefix + "D" + element[len("D_" + prefix) + 1:]
        elif element.startswith(prefix) and element not in pins:
            inside[element] = element
    _add_subnet(net, "CS_" + name, "compressor_station", pins, net.stations[name]["compressors"][0], inside, 24)


def _add_inside(net, name, node, parts, edges):
    """Nodes beside another one, and edges of (word, first end, second end, further arguments), by the template's names."""
    for part, bounds in parts.items():
        net.add_node_beside(f"{name}_{part}", node, 0.0, 0.0, "stations", bounds)
    for part, (word, *ends, extra) in edges.items():
        if word == "regulator":
            _add_regulator(net, f"{name}_{part}", ends, **extra)
        else:
            net.add_edge(f"{name}_{part}", word, ends, "stations", **extra)
    return {key: key for key in (f"{name}_{part}" for part in (*parts, *edges))}


def _add_regulator_station(net, name, before, behind):
    a1, a2, b1, b2 = (f"{name}_{part}" for part in ("A1", "A2", "B1", "B2"))
    inside = _add_inside(net, name, before, {"A1": TRANSMISSION, "A2": TRANSMISSION, "B1": REGIONAL, "B2": REGIONAL},
                         {"V1": ("valve", before, a1, {}), "V2": ("valve", before, a2, {}), "V3": ("valve", b1, behind, {}),
                          "V4": ("valve", b2, behind, {}), "R1": ("regulator", a1, b1, {"active": True}),
                          "R2": ("regulator", a2, b2, {"active": False})})
    _add_subnet(net, name, "regulator_station", (before, behind), name + "_R1", inside, 20)


def _add_metering_station(net, name, before, behind):
    a, b = name + "_A", name + "_B"
    inside = _add_inside(net, name, before, {"A": TRANSMISSION, "B": TRANSMISSION},
                         {"V1": ("valve", before, a, {}), "V2": ("valve", b, behind, {}), "M": ("resistor", a, b, {}),
                          "BP": ("valve", before, behind, {"law": "shut"})})
    _add_subnet(net, name, "metering_station", (before, behind), name + "_M", inside, 20)


def _add_valve_junction(net, place):
    """The pipes of a place keep apart: the second and the third get end nodes of their own."""
    name, node = "VJ_" + place, "N_" + place
    pins = node, *(net.add_node_beside(f"{node}_{pin}", node, dx, dy, "backbone")
                   for pin, dx, dy in (("B", 800.0, 0.0), ("C", 400.0, -400.0)))
    pipes = [edge for edge in net.edges if node in (edge.node1, edge.node2)]
    assert len(pipes) == 3, f"{place} has {len(pipes)} pipes"
    pipes.sort(key=lambda edge: _eastward(net, edge, node))  # the one from the west stays, the one to the east goes to B
    for edge, pin in ((pipes[2], pins[1]), (pipes[1], pins[2])):
        for end in ("node1", "node2"):
            if getattr(edge, end) == node:
                setattr(edge, end, pin)
                net.elements[edge.name][end] = pin
    middle = name + "_M"
    inside = _add_inside(net, name, node, {"M": TRANSMISSION},
                         {"VA": ("valve", pins[0], middle, {}), "VB": ("valve", middle, pins[1], {}),
                          "VC": ("valve", middle, pins[2], {})})
    _add_subnet(net, name, "valve_junction", pins, name + "_VA", inside, 20)


def _eastward(net, edge, node):
    return net.elements[edge.node2 if edge.node1 == node else edge.node1]["x"]


def _add_texts(net):
    for name, (lon, lat, text, font, colour) in places.TEXTS.items():
        x, y = forward(lon, lat)
        net.elements[name] = {"obj_type": "tbox", "text": text, "x": round(x, 1), "y": round(y, 1), "vis.font": font,
                              "vis.color": colour, "vis.layer": "texts"}
