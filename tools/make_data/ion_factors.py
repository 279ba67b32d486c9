"""Writes ion_factors.csv: X-ray scattering factors of ions, four Gaussians and a constant.

The coefficients are those of International Tables for Crystallography C (1992), table 6.1.1.4, as tabulated in cctbx
(Debian: python3-cctbx). Besides the ions the file takes the valence states Cval and Sival and the isolated hydrogen
atom Hiso, which have coefficients of their own. One record a row: key, a1, b1, ... a4, b4, c, atomic number.

Run:  cctbx.python ion_factors.py ion_factors.csv
"""

import sys

from cctbx.eltbx import tiny_pse, xray_scattering


def shortest(value):
    """Six significant digits, which the table never exceeds; cctbx keeps them as 32-bit floats."""
    text = format(value, ".6g")
    if "e" in text:
        raise ValueError(f"{value}: a plain decimal number is expected")
    return text


def row(entry):
    gaussian = entry.fetch()
    if gaussian.n_terms() != 4 or not gaussian.use_c():
        raise ValueError(f"{entry.label()}: four Gaussians and a constant are expected")
    element = entry.label().rstrip("0123456789+-")
    element = {"Hiso": "H", "Cval": "C", "Sival": "Si"}.get(element, element)
    numbers = []
    for a, b in zip(gaussian.array_of_a(), gaussian.array_of_b()):
        numbers += [shortest(a), shortest(b)]
    numbers += [shortest(gaussian.c()), str(tiny_pse.table(element).atomic_number())]
    return f'"{entry.label()}",' + ",".join(numbers)


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: cctbx.python ion_factors.py OUTPUT")
    neutral = {tiny_pse.table(z).symbol() for z in range(1, 99)}
    rows = [row(entry) for entry in xray_scattering.it1992_iterator() if entry.label() not in neutral]
    with open(sys.argv[1], "w", newline="") as output:
        output.write("".join(line + "\r\n" for line in rows))


main()
