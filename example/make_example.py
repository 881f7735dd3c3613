#!/usr/bin/python3
"""Writes the example network DE_H2 beside this file, or into the directory given. Needs numpy; takes two minutes."""

import math
import sys
from pathlib import Path

from generator import machines, network, scenarios, writer


def set_power_limits(net, outcomes):
    """A drive is as large as its hardest scenario asks for, with a tenth to spare, in steps of 5 MW."""
    for station in net.stations.values():
        for compressor in station["compressors"]:
            peak = max(outcome.machines[compressor].power for outcome in outcomes.values())
            net.elements[net.elements[compressor]["drive"]]["powermax"] = 5.0 * max(1, math.ceil(1.1 * peak / 5.0))


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent
    case = root / "DE_H2"
    case.mkdir(parents=True, exist_ok=True)
    net = network.build()
    drafts = {name: scenarios.run(net, name) for name in scenarios.SCENARIOS}
    maps = machines.design(net, drafts)
    outcomes = {name: scenarios.run(net, name, maps) for name in scenarios.SCENARIOS}
    set_power_limits(net, outcomes)
    writer.write_geometry(case, net)
    machines.write(case / "machines.txt", net, maps)
    for name, outcome in outcomes.items():
        writer.write_scenario(case / name, net, outcome)
    print(f"{len(net.nodes())} nodes and {len(net.edges)} edges written to {case}")


if __name__ == "__main__":
    main()
