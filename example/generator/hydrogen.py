"""Hydrogen as a real gas, by its equation of state in Kunz and Wagner, "The GERG-2008 Wide-Range Equation of State for
Natural Gases and Other Mixtures", J. Chem. Eng. Data 57 (2012) 3032-3091.

Pressures in bar, temperatures in K, densities in kg/m3, enthalpies in kJ/kg, entropies in kJ/(kg K).
"""

import math
from functools import lru_cache

GAS_CONSTANT = 8.314472 / 2.01588  # kJ/(kg K)
MOLAR_MASS = 2.01588
CRITICAL_DENSITY = 14.94 * MOLAR_MASS
CRITICAL_TEMPERATURE = 33.19

# n delta^d tau^t exp(-delta^c); no exponential for c = 0
TERMS = ((5.3579928451252, 1, 0.5, 0), (-6.2050252530595, 1, 0.625, 0), (0.13830241327086, 2, 0.375, 0),
         (-0.071397954896129, 2, 0.625, 0), (0.015474053959733, 4, 1.125, 0), (-0.14976806405771, 1, 2.625, 1),
         (-0.026368723988451, 5, 0.0, 1), (0.056681303156066, 5, 0.25, 1), (-0.060063958030436, 5, 1.375, 1),
         (-0.45043942027132, 1, 4.0, 2), (0.424788402445, 1, 4.25, 2), (-0.021997640827139, 2, 5.0, 3),
         (-0.01049952137453, 5, 8.0, 3), (-0.0028955902866816, 1, 8.0, 5))
# cp/R of the ideal gas: 2.47906 + sum n (h/T)^2 / sinh^2(h/T), or cosh for the second list
CONSTANT = 2.47906
SINES = ((0.95806, 228.734), (1.56039, 1651.71))
COSINES = ((0.45444, 326.843), (-1.3756, 1671.69))


def _residual(density, temperature):
    """The residual Helmholtz energy, its first two derivatives by density and the first by temperature, reduced."""
    delta, tau = density / CRITICAL_DENSITY, CRITICAL_TEMPERATURE / temperature
    a = d = dd = t = 0.0
    for n, power, exponent, c in TERMS:
        decay = delta**c if c else 0.0
        value = n * delta**power * tau**exponent * math.exp(-decay)
        by = power - c * decay
        a += value
        d += value * by
        dd += value * (by * by - power - c * (c - 1) * decay)
        t += value * exponent
    return a, d, dd, t


@lru_cache(maxsize=100000)
def density(pressure, temperature):
    ideal = pressure * 100.0 / (GAS_CONSTANT * temperature)
    result = ideal
    for _ in range(50):
        _, d, dd, _ = _residual(result, temperature)
        step = (result * (1.0 + d) - ideal) / (1.0 + 2.0 * d + dd)
        result -= step
        if abs(step) < 1e-13 * result:
            return result
    raise ArithmeticError("no density found")


def enthalpy(pressure, temperature):
    """From an arbitrary zero."""
    _, d, _, t = _residual(density(pressure, temperature), temperature)
    ideal = CONSTANT * temperature + sum(n * h / math.tanh(h / temperature) for n, h in SINES)
    ideal -= sum(n * h * math.tanh(h / temperature) for n, h in COSINES)
    return GAS_CONSTANT * (ideal + temperature * (t + d))


def entropy(pressure, temperature):
    """From an arbitrary zero."""
    rho = density(pressure, temperature)
    a, _, _, t = _residual(rho, temperature)
    ideal = CONSTANT * math.log(temperature)
    for n, h in SINES:
        x = h / temperature
        ideal += n * (x / math.tanh(x) - math.log(math.sinh(x)))
    for n, h in COSINES:
        x = h / temperature
        ideal -= n * (x * math.tanh(x) - math.log(math.cosh(x)))
    return GAS_CONSTANT * (ideal - math.log(rho * GAS_CONSTANT * temperature) + t - a)


def _temperature(function, pressure, wanted, start):
    """The secant method; both functions are nearly straight here."""
    first, second = start, start * 1.01
    value = function(pressure, first) - wanted
    for _ in range(50):
        other = function(pressure, second) - wanted
        if abs(second - first) < 1e-9 or other == value:
            return second
        first, second, value = second, second - other * (second - first) / (other - value), other
    raise ArithmeticError("no temperature found")


@lru_cache(maxsize=100000)
def head(inlet, outlet, temperature):
    """The enthalpy in kJ/kg that a compression at constant entropy takes."""
    if outlet == inlet:
        return 0.0
    behind = _temperature(entropy, outlet, entropy(inlet, temperature), temperature)
    return enthalpy(outlet, behind) - enthalpy(inlet, temperature)


@lru_cache(maxsize=100000)
def outlet_temperature(inlet, outlet, temperature, efficiency):
    """Behind a compression."""
    wanted = enthalpy(inlet, temperature) + head(inlet, outlet, temperature) / efficiency
    return _temperature(enthalpy, outlet, wanted, temperature)
