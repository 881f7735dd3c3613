"""Writes the network, its scenarios and their results in the forms that the viewer reads."""

import json
import math

from .hydraulics import CALORIFIC_VALUE, HEAT_CAPACITY, MOLAR_MASS, RHO_NORM
from .hydrogen import density
from .network import CRITICAL_POINT
from .places import REFERENCE_NODE
from .scenarios import SCENARIOS, units_to_m, units_to_q
from .subnets import outside, sub_results

PLOT_SETTINGS = """[General]
colorFunc=p
widthFunc=diameter
nodeColorFunc=p
nodeSizeFunc=--- fixed ---
colorScalePos=0
legendPos=0
gridMajorColor=#c0c0c0
gridMinorColor=#d3d3d3
absColor=false
absWidth=true
absNodeColor=true
absNodeSize=true
logScaleColor=false
logScaleWidth=false
logScaleNodeColor=false
logScaleNodeSize=false
logFactor=7.8
minVal_edgeColor=10
maxVal_edgeColor=85
minVal_nodeColor=10
maxVal_nodeColor=85
minVal_Width=-1e+30
maxVal_Width=1e+30
minVal_nodeSize=-1e+30
maxVal_nodeSize=1e+30
label_mode=selected properties
fixAxesRatio=true
showXYaxes=false
zoomFact=1.5
alphaSubnet=100
layerProp=vis.layer

[magnitudes]
nodeMag=4
edgeMag=1
edgeConst=1
labelMargin=4
labelMag=8
arrowMag=5
symMag=20

[color_options]
saturation=255
nodeLabelsColor=#000000
lightness=215
edgeLabelsColor=#000000
firstColor=240
bgrColor=#ffffff
lastColor=0
edgeColorInactive=#a0a0a4
edgeShowFlow=q
edgeColorNoFlow=#808080

[drawing]
colorRamp=plasma
legend=true
"""


def write_lines(path, elements):
    """One element a line; the comma stands at the start of the line that follows."""
    lines = [f"{json.dumps(name, ensure_ascii=False)}:{json.dumps(value, ensure_ascii=False, separators=(',', ':'))}"
             for name, value in elements.items()]
    path.write_text("{\n" + "\n,".join(lines) + "\n}\n", encoding="utf-8")


def write_document(path, value):
    path.write_text(json.dumps(value, ensure_ascii=False, indent=1) + "\n", encoding="utf-8")


def write_geometry(directory, net):
    elements = outside(net.elements, net.inside)
    write_lines(directory / f"{directory.name}.geom.jsn", elements)
    about = json.dumps({"source": "fictional network, made by make_example.py", "projection": "UTM zone 32, GRS80, metres"})
    (directory / f"{directory.name}.geom.cfg").write_text(
        f"geometry configuration\n{directory.name}\n{directory.name}.geom\n0\n{about}\n", encoding="utf-8")
    (directory / "plotsettings.ini").write_text(PLOT_SETTINGS, encoding="utf-8")


def write_scenario(directory, net, outcome):
    name = directory.name
    directory.mkdir(parents=True, exist_ok=True)
    values, results = _set_points(net, outcome), _results(net, outcome)
    write_lines(directory / f"{name}.scen.jsn", outside(values, net.inside))
    write_lines(directory / f"{name}.res.jsn", outside(results, net.inside))
    write_lines(directory / f"{name}.res.sub.jsn", sub_results(net, values, results))
    write_lines(directory / f"{name}.gas.jsn", {"Hydrogen": {"obj_type": "gas", "rhon": RHO_NORM, "molarmass": MOLAR_MASS,
                                                             "hs": CALORIFIC_VALUE, **CRITICAL_POINT}})
    write_document(directory / "scenconfig.jsn", {
        "workDir": name, "scenFile": f"{name}.scen", "gasFile": f"{name}.gas", "comprDatabase": "../machines.txt", "pyFile": "nivra_run.py",
        "logFile": "nivra_run.log", "resRoot": "nivra_run", "statusFile": "nivra_run.stat", "NivraVersion_used": "example",
        "GeneralProps": {"title": SCENARIOS[name]["title"]}})
    write_document(directory / "solverconfig.jsn", {
        "ntype_gasLaw": 1, "ntype_hydraulicsFormula": 1, "ntype_gasMix": 0, "ntype_temperature": 1, "ntype_transient": False,
        "ntype_steady": True, "tamb": 283.15, "tsoil": 283.15, "ntype_HTC": 1, "HTC_value": 2.0})


def _value(name, value, unit=None):
    return {"property": name, "value": value, **({"unit": unit} if unit else {})}


def _set_points(net, outcome):
    values = {node: [_value("qset", units_to_q(units), "1000 m3/h")] for node, units in outcome.offtakes.items()}
    pressure = round(outcome.pressures["N_" + REFERENCE_NODE], 8)
    values.setdefault("N_" + REFERENCE_NODE, []).append(_value("pset", pressure, "bar"))
    for name, station in net.stations.items():
        running = outcome.ratios[name] > 1.0
        for compressor in station["compressors"]:
            values[compressor] = [_value("state", "active" if running else "off")]
            if running:
                header = net.elements[compressor]["node2"]
                values[compressor].append(_value("poutset", round(outcome.pressures[header], 8), "bar"))
        values[station["bypass"]] = [_value("state", "closed" if running else "open")]
    for name, element in net.elements.items():
        if element["obj_type"] == "regulator" and element["state"] == "active":
            values[name] = [_value("poutset", element["pset"], "bar")]
    return values


def _results(net, outcome):
    results = {}
    for node in net.nodes():
        p, t = round(outcome.pressures[node], 8), outcome.temperatures[node]
        results[node] = {"p": p, "t": round(t, 3), "rho": round(density(p, t), 5)}
    for edge in net.edges:
        units = outcome.flows[edge.name]
        # Adding 0.0 turns a negative zero into zero.
        drop = round(results[edge.node1]["p"] - results[edge.node2]["p"], 8) + 0.0
        results[edge.name] = {"q": units_to_q(units), "m": units_to_m(units), "dp": drop,
                              **_extra(net.elements[edge.name], units_to_m(units), results[edge.node1], results[edge.node2])}
    for name, station in net.stations.items():
        _machine_results(net, outcome, name, station, results)
    return results


def _extra(element, m, first, second):
    if element["obj_type"] == "pipe":
        area = math.pi / 4.0 * (element["diameter"] / 1000.0) ** 2
        return {"v": round(m / (min(first["rho"], second["rho"]) * area), 4) + 0.0}
    if element["obj_type"] in ("cooler", "heater"):
        before, after = (first, second) if m >= 0.0 else (second, first)
        return {"heat": round(abs(m) * HEAT_CAPACITY * (after["t"] - before["t"]) / 1.0e6, 4) + 0.0}
    return {}


def _machine_results(net, outcome, name, station, results):
    """The fuel of a station is what its fuel gas node takes, split by power."""
    total = sum(outcome.machines[c].power for c in station["compressors"])
    fuel = units_to_q(outcome.offtakes[station["fuel"]]) if station["turbine"] else 0.0
    for compressor in station["compressors"]:
        work = outcome.machines[compressor]
        results[compressor].update({"power": round(work.power, 4), "head": round(work.head, 3), "ratio": outcome.ratios[name],
                                    "efficiency": round(work.efficiency, 5), "speed": round(work.speed, 1)})
        share = work.power / total if total > 0.0 else 0.0
        results[net.elements[compressor]["drive"]] = {"power": round(work.power, 4), "fuel": round(fuel * share, 6)}
