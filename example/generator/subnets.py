"""What is inside of subnets: it is left out of the network's own files, for the viewer makes it of a template."""

GIVEN = ("machine", "powermax", "pset")  # what differs from station to station


def outside(elements, names):
    return {name: value for name, value in elements.items() if name not in names}


def sub_results(net, values, results):
    """Set points and results of what is inside, with what its template cannot know."""
    inside = {}
    for name, created in net.inside.items():
        given = {key: net.elements[name][key] for key in GIVEN if key in net.elements[name]}
        points = {point["property"]: point["value"] for point in values.get(name, [])}
        inside[created] = {**given, **points, **results.get(name, {})}
    return inside
