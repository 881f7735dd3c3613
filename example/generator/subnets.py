"""What is inside of subnets: it is left out of the network's own files, for the viewer makes it of a template."""

VARIANT = "compressor_station"
PINS = ("In", "Out")
GIVEN = ("machine", "powermax")  # of the drives, which differ from station to station


def created_names(net, stations):
    """From the name of an element inside of a subnet to the name that it gets when it is made of the template."""
    names = {}
    for station in stations:
        prefix = f"CS_{station}_"
        pins = {prefix + pin for pin in PINS}
        for name in net.elements:
            if name.startswith("D_" + prefix):
                names[name] = prefix + "D" + name[len("D_" + prefix) + 1:]
            elif name.startswith(prefix) and name not in pins:
                names[name] = name
    return names


def outside(elements, names):
    return {name: value for name, value in elements.items() if name not in names}


def sub_results(net, names, values, results):
    """Set points and results of what is inside, with what its template cannot know."""
    inside = {}
    for name, created in names.items():
        given = {key: net.elements[name][key] for key in GIVEN if key in net.elements[name]}
        points = {point["property"]: point["value"] for point in values.get(name, [])}
        inside[created] = {**given, **points, **results.get(name, {})}
    return inside
