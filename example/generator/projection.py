"""Transverse Mercator projection of UTM zone 32 on the GRS80 ellipsoid.

German readers know its coordinates from their own maps; it keeps angles, so the country keeps its shape.
Krüger's series to the fourth order in the third flattening is good for a fraction of a millimetre here.
"""

import math

SEMI_MAJOR = 6378137.0
FLATTENING = 1.0 / 298.257222101
SCALE = 0.9996
CENTRAL_LONGITUDE = 9.0
FALSE_EASTING = 500000.0
EARTH_RADIUS = 6371000.8

_N = FLATTENING / (2.0 - FLATTENING)
_RECTIFYING_RADIUS = SEMI_MAJOR / (1.0 + _N) * (1.0 + _N**2 / 4.0 + _N**4 / 64.0)
_ALPHA = (
    _N / 2.0 - 2.0 * _N**2 / 3.0 + 5.0 * _N**3 / 16.0 + 41.0 * _N**4 / 180.0,
    13.0 * _N**2 / 48.0 - 3.0 * _N**3 / 5.0 + 557.0 * _N**4 / 1440.0,
    61.0 * _N**3 / 240.0 - 103.0 * _N**4 / 140.0,
    49561.0 * _N**4 / 161280.0,
)


def forward(lon, lat):
    """Easting and northing in metres of a longitude and latitude in degrees."""
    phi = math.radians(lat)
    delta = math.radians(lon - CENTRAL_LONGITUDE)
    eccentric = 2.0 * math.sqrt(_N) / (1.0 + _N)
    t = math.sinh(math.atanh(math.sin(phi)) - eccentric * math.atanh(eccentric * math.sin(phi)))
    xi = math.atan2(t, math.cos(delta))
    eta = math.atanh(math.sin(delta) / math.sqrt(1.0 + t * t))
    easting, northing = eta, xi
    for j, a in enumerate(_ALPHA, start=1):
        easting += a * math.cos(2 * j * xi) * math.sinh(2 * j * eta)
        northing += a * math.sin(2 * j * xi) * math.cosh(2 * j * eta)
    factor = SCALE * _RECTIFYING_RADIUS
    return FALSE_EASTING + factor * easting, factor * northing


def inverse(x, y, near):
    """Longitude and latitude of a point in metres, found from a place (lon, lat) that lies near it."""
    lon, lat = near
    for _ in range(6):
        east, north = forward(lon, lat)
        lat += math.degrees((y - north) / EARTH_RADIUS)
        lon += math.degrees((x - east) / (EARTH_RADIUS * math.cos(math.radians(lat))))
    return lon, lat


def great_circle(a, b):
    """Distance in metres of two (lon, lat) pairs on the sphere."""
    lon1, lat1, lon2, lat2 = (math.radians(v) for v in (*a, *b))
    half = math.sin((lat2 - lat1) / 2) ** 2 + math.cos(lat1) * math.cos(lat2) * math.sin((lon2 - lon1) / 2) ** 2
    return 2.0 * EARTH_RADIUS * math.asin(math.sqrt(half))
