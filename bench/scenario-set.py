#!/usr/bin/env python3
"""What figures over many scenarios cost beside opening each of them: scenario-set.py [PRESET [SCENARIOS [ELEMENTS]]].

Makes a case of dated scenarios, 400 of 500 elements unless told otherwise, and compares NivraViewer --set over all of them
with NivraViewer --info of one after the other: time, and the largest memory of a process.
"""
import datetime
import json
import os
import random
import subprocess
import sys
import tempfile
import time

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def make_case(tool, folder, scenarios, elements):
    """The paths of the scenario files, with values that follow the seasons."""
    subprocess.run([tool, "--elements", str(elements), folder], check=True, stdout=subprocess.DEVNULL)
    name = os.path.basename(folder)
    with open(os.path.join(folder, name + ".geom.jsn"), encoding="utf-8") as file:
        kinds = {key: value for key, value in json.load(file).items()}
    nodes = [key for key, value in kinds.items() if "node1" not in value]
    edges = [key for key, value in kinds.items() if "node1" in value]
    files = []
    for number in range(scenarios):
        day = datetime.date(2015, 1, 1) + datetime.timedelta(days=number)
        chance = random.Random(number)
        path = os.path.join(folder, day.isoformat())
        os.mkdir(path)

        def write(suffix, lines, path=path, day=day):
            with open(os.path.join(path, day.isoformat() + suffix), "w", encoding="utf-8") as file:
                file.write("{\n" + "\n,".join(lines) + "\n}\n")

        write(".scen.jsn", ['"%s":[{"property":"qset","value":%.3f,"unit":"1000 m3/h"}]' % (key, chance.uniform(-90, 90))
                            for key in nodes])
        write(".res.jsn", ['"%s":{"p":%.5f,"t":%.3f}' % (key, chance.uniform(40, 80), chance.uniform(275, 295))
                           for key in nodes] +
              ['"%s":{"q":%.4f,"v":%.4f}' % (key, chance.uniform(-500, 500), chance.uniform(-9, 9)) for key in edges])
        files.append(os.path.join(path, day.isoformat() + ".scen.jsn"))
    return files


def measure(command):
    """Seconds and megabytes."""
    start = time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit("%s ended with %d" % (" ".join(command), process.returncode))
    return time.monotonic() - start, usage.ru_maxrss / 1024


def main():
    preset = sys.argv[1] if len(sys.argv) > 1 else "release"
    scenarios = int(sys.argv[2]) if len(sys.argv) > 2 else 400
    elements = int(sys.argv[3]) if len(sys.argv) > 3 else 500
    programs = os.path.join(TOP, "build", preset, "bin")
    viewer = os.path.join(programs, "NivraViewer")
    with tempfile.TemporaryDirectory() as folder:
        os.environ.update(XDG_DATA_HOME=folder, XDG_CONFIG_HOME=folder, XDG_RUNTIME_DIR=folder)
        files = make_case(os.path.join(programs, "nivra-make-network"), os.path.join(folder, "root", "made"), scenarios,
                          elements)
        measure([viewer, "--info", files[0]])  # files into memory
        opened = [measure([viewer, "--info", file]) for file in files]
        together = measure([viewer, "--set", "all", files[0]])
    one_by_one = sum(seconds for seconds, _ in opened)
    largest = max(memory for _, memory in opened)
    print("%d scenarios of %d elements" % (scenarios, elements))
    print("one by one  %7.2f s, at most %.1f MB" % (one_by_one, largest))
    print("as a set    %7.2f s, %.1f MB: %.3f times the time, %.2f times the memory" %
          (together[0], together[1], together[0] / one_by_one, together[1] / largest))


if __name__ == "__main__":
    main()
