#!/usr/bin/python3
"""Checks the files of the example network beside this file, or in the directory given, as a reader of them would.

Prints what is wrong and exits with 1. Needs nothing but Python and nothing of what made the files.
"""

import csv
import json
import sys
from fractions import Fraction
from pathlib import Path

WORDS = {"node", "drive", "heater", "cooler", "flaptrap", "shortcut", "valve", "pipe", "resistor", "compressor", "regulator",
         "subnet", "tbox"}
NO_EDGES = {"node", "drive", "subnet", "tbox"}
LAYERS = {"backbone", "regional", "stations", "storage", "entries", "exits", "texts"}
SCENARIOS = ("S1", "S3", "S5")
KG_PER_S_OF_Q = 0.0899 / 3.6
SMALL_FLOW = 0.05  # kg/s; below it the pressure drop may vanish in the digits that are written
BALANCE = Fraction(1, 10**9)  # of the flow through a node


def number(text):
    try:
        return Fraction(text)
    except ValueError:
        return text


class Checker:
    def __init__(self, case, faults):
        self.case = case
        self.faults = faults
        self.net = self.read(case / f"{case.name}.geom.jsn")
        self.assembled = {}
        for name, subnet in [*self.of_type("subnet").items()]:
            self.assembled |= self.assemble(name, subnet)
        self.net |= self.assembled
        self.edges = {name: e for name, e in self.net.items() if e["obj_type"] not in NO_EDGES}
        self.nodes = self.of_type("node")

    def of_type(self, word):
        return {name: e for name, e in self.net.items() if e["obj_type"] == word}

    def expect(self, condition, text):
        if not condition:
            self.faults.append(text)

    def read(self, path):
        """A file with one element a line, its comma at the start of the following one. Numbers stay exact."""
        elements, seen = {}, set()
        first, *lines, last = path.read_text(encoding="utf-8").splitlines()
        self.expect((first, last) == ("{", "}"), f"{path.name}: the outermost braces need lines of their own")
        for number, line in enumerate(lines, start=2):
            self.expect(line.startswith(",") == (number > 2), f"{path.name}:{number}: comma misplaced")
            (name, value), = json.loads("{" + line.lstrip(",") + "}", parse_float=Fraction).items()
            self.expect(name.casefold() not in seen, f"{path.name}:{number}: {name} is there twice")
            seen.add(name.casefold())
            elements[name] = value
        return elements

    def assemble(self, name, subnet):
        """The elements that the template of a subnet stands for, as the viewer names them."""
        columns, word, rows = [], "", {}
        path = Path(__file__).resolve().parent.parent / "net_subassemblies" / f"{subnet['variant']}.geom"
        for line in path.read_text(encoding="utf-8").splitlines():
            if line.startswith("["):
                word = line.strip("[]")
            elif line.startswith("name;"):
                columns = line.split(";")
            elif line and not line.startswith("#"):
                row = dict(zip(columns, next(csv.reader([line], delimiter=";"))))
                rows[row.pop("name")] = {"obj_type": word, **{k: number(v) for k, v in row.items() if v}}
        names = dict(zip(rows.pop("SUB")["pins"].split(";"), subnet["pins"].split(";")))
        names |= {key: f"{name}_{key}" for key in rows if key not in names}
        return {names[key]: {k: names.get(v, v) for k, v in row.items()} for key, row in rows.items()
                if names[key] not in self.net}

    def check_geometry(self):
        found = {e["obj_type"] for e in self.net.values()}
        self.expect(found == WORDS, f"types missing or unknown: {found ^ WORDS}")
        layers = {e.get("vis.layer") for e in self.net.values()}
        self.expect(layers == LAYERS, f"layers missing or unknown: {layers ^ LAYERS}")
        count = len(self.nodes) + len(self.of_type("drive"))
        self.expect(150 <= count <= 300, f"{count} nodes and drives")
        for name, node in self.nodes.items():
            inside = name in self.assembled or 5.8 < node["lon"] < 15.1 and 47.2 < node["lat"] < 55.1
            self.expect(inside, f"{name} lies abroad")
            self.expect(node["pmin"] < node["pmax"], f"{name}: pressure bounds")
        for name, edge in self.edges.items():
            self.expect({edge["node1"], edge["node2"]} <= self.nodes.keys(), f"{name}: end node missing")
        for name, subnet in self.of_type("subnet").items():
            named = {*subnet["pins"].split(";")} - self.nodes.keys() | {subnet["main_element"]} - self.edges.keys()
            self.expect(not named, f"{name}: {named} missing")
        self.check_connected()
        self.check_drives()

    def check_connected(self):
        reached, fresh = set(), [next(iter(self.nodes))]
        while fresh:
            node = fresh.pop()
            reached.add(node)
            for edge in self.edges.values():
                ends = {edge["node1"], edge["node2"]}
                if node in ends:
                    fresh += ends - reached
        self.expect(reached == self.nodes.keys(), f"not connected: {self.nodes.keys() - reached}")

    def check_drives(self):
        drives, compressors = self.of_type("drive"), self.of_type("compressor")
        for name, compressor in compressors.items():
            drive = drives.get(compressor.get("drive"), {})
            self.expect(drive.get("driven") == name, f"{name} has no drive")
        for name, drive in drives.items():
            self.expect(drive["gasnode"] in self.nodes, f"{name}: gas node missing")
            self.expect(compressors.get(drive["driven"], {}).get("drive") == name, f"{name} drives nothing")

    def check_scenario(self, name):
        directory = self.case / name
        for document in ("scenconfig.jsn", "solverconfig.jsn"):
            json.loads((directory / document).read_text(encoding="utf-8"))
        self.read(directory / f"{name}.gas.jsn")
        results = self.read(directory / f"{name}.res.jsn")
        values = {element: {v["property"]: v["value"] for v in entries}
                  for element, entries in self.read(directory / f"{name}.scen.jsn").items()}
        inside = self.read(directory / f"{name}.res.sub.jsn")
        self.expect(inside.keys() == self.assembled.keys(), f"{name}: sub-results of {inside.keys() ^ self.assembled.keys()}")
        results |= inside
        values |= inside
        for element in (*results, *values):
            self.expect(element in self.net, f"{name}: {element} is not in the network")
        missing = {*self.nodes, *self.edges, *self.of_type("drive")} - results.keys()
        if missing:
            self.faults.append(f"{name}: no results for {missing}")
            return
        self.check_balance(name, results, values)
        for node, bounds in self.nodes.items():
            p = results[node]["p"]
            self.expect(bounds["pmin"] <= p <= bounds["pmax"], f"{name}: {node} at {float(p)} bar")
            demand = values.get(node, {}).get("qset", 0)
            self.expect(bounds.get("qmin", 0) <= demand <= bounds.get("qmax", 0), f"{name}: {node} takes {float(demand)}")
        for edge in self.edges:
            self.check_edge(name, edge, results, {**self.net[edge], **values.get(edge, {})})
        for drive, properties in self.of_type("drive").items():
            power = results[drive]["power"]
            self.expect(power == results[properties["driven"]]["power"], f"{name}: {drive} and its compressor differ")
            self.expect(0 <= power <= {**properties, **values.get(drive, {})}["powermax"], f"{name}: {drive} at {float(power)} MW")

    def check_balance(self, scenario, results, values):
        demands = {node: values.get(node, {}).get("qset", 0) for node in self.nodes}
        balance = {node: [-demand, abs(demand)] for node, demand in demands.items()}
        for name, edge in self.edges.items():
            q = results[name]["q"]
            for node, signed in ((edge["node1"], -q), (edge["node2"], q)):
                balance[node][0] += signed
                balance[node][1] += abs(q)
        fuel = {}
        for name, drive in self.of_type("drive").items():
            fuel[drive["gasnode"]] = fuel.get(drive["gasnode"], 0) + results[name]["fuel"]
        for node, (surplus, size) in balance.items():
            self.expect(abs(surplus) <= BALANCE * size, f"{scenario}: balance of {node} is {float(surplus)}")
        for node, flow in fuel.items():
            burnt = abs(flow - demands[node]) < Fraction(1, 10**5)
            self.expect(burnt, f"{scenario}: {node} takes other than its drives burn")

    def check_edge(self, scenario, name, results, edge):
        """Pressure falls along the flow, unless a compressor lifts it; nothing flows where nothing can."""
        result, word = results[name], edge["obj_type"]
        p1, p2 = results[edge["node1"]]["p"], results[edge["node2"]]["p"]
        m, label = result["m"], f"{scenario}: {name}"
        self.expect(abs(m - result["q"] * Fraction(KG_PER_S_OF_Q)) <= Fraction(1, 10**8), f"{label}: q and m differ")
        self.expect(result["dp"] == p1 - p2, f"{label}: dp is not p1 - p2")
        self.expect(edge["qmin"] <= result["q"] <= edge["qmax"], f"{label}: flow {float(result['q'])} out of bounds")
        if edge.get("state") in ("closed", "off"):
            self.expect(m == 0, f"{label}: flow though shut")
        elif word == "compressor":
            self.expect(m > 0 and p2 > p1, f"{label}: runs without lifting")
            self.expect(p1 >= edge["pinmin"] and p2 <= edge["poutmax"], f"{label}: pressures out of bounds")
            self.expect(abs(p2 - edge["poutset"]) < Fraction(1, 10**6), f"{label}: set point not held")
        elif word == "regulator":
            self.expect(m >= 0 and p1 > p2, f"{label}: runs backwards")
            self.expect(abs(p2 - edge["poutset"]) < Fraction(1, 10**6), f"{label}: set point not held")
        else:
            self.expect(word != "flaptrap" or m >= 0, f"{label}: flow against the flap")
            self.expect((p1 - p2) * m >= 0, f"{label}: pressure rises along the flow")
            strict = word != "shortcut" and abs(m) > SMALL_FLOW
            self.expect(not strict or p1 != p2, f"{label}: no pressure drop")


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent
    faults = []
    try:
        checker = Checker(root / "DE_H2", faults)
        checker.check_geometry()
        for name in SCENARIOS:
            checker.check_scenario(name)
    except (OSError, ValueError, KeyError, TypeError) as error:
        faults.append(f"the files cannot be checked to the end: {type(error).__name__} {error}")
    for fault in faults:
        print(fault, file=sys.stderr)
    if faults:
        return 1
    print(f"{len(checker.nodes)} nodes, {len(checker.edges)} edges, scenarios {', '.join(SCENARIOS)}: all well")
    return 0


if __name__ == "__main__":
    sys.exit(main())
