#!/usr/bin/env python3
"""Bunge's Euler angles of a solution of the analysis window.

    euler.py Silicon.cry -571 297 1000 289.28 [--tilt 70]

The crystal file gives the cell. The three numbers after it are u v w of the solution, the direction of the crystal along
the screen normal, from the specimen to the screen. The fourth is the rotation in degrees, the mean of the three that the
window shows after a click on the solution: the angle from x of the flipped picture, towards its y, to the reciprocal
vector (w, w, -u-v). --tilt is the tilt of the sample less that of the screen.

Frames: detector x to the right, y up, z from the specimen to the screen, as seen from behind the screen; sample X down
the slope, Y to the right, Z the normal; crystal e1 along a, e3 along c*. The angles turn the sample axes into those of
the crystal: H. J. Bunge, Texture Analysis in Materials Science, Butterworths 1982.
"""
import argparse
import csv
import math
import sys


def cross(p, q):
    return [p[1] * q[2] - p[2] * q[1], p[2] * q[0] - p[0] * q[2], p[0] * q[1] - p[1] * q[0]]


def unit(p):
    length = math.sqrt(sum(x * x for x in p))
    return [x / length for x in p]


def summed(factors, vectors):
    return [sum(f * v[i] for f, v in zip(factors, vectors)) for i in range(3)]


def axes_of(a, b, c, alpha, beta, gamma):
    """Edges of the cell in e1 along a, e3 along c*."""
    ca, cb, cg = (math.cos(math.radians(x)) for x in (alpha, beta, gamma))
    sg = math.sin(math.radians(gamma))
    y = (ca - cb * cg) / sg
    return [a, 0, 0], [b * cg, b * sg, 0], [c * cb, c * y, c * math.sqrt(1 - cb * cb - y * y)]


def euler_angles(cell, uvw, rotation, tilt):
    """phi1, Phi, phi2 in degrees."""
    edges = axes_of(*cell)
    volume = sum(x * y for x, y in zip(edges[0], cross(edges[1], edges[2])))
    reciprocal = [[x / volume for x in cross(edges[(i + 1) % 3], edges[(i + 2) % 3])] for i in range(3)]
    u, v, w = uvw
    z = unit(summed(uvw, edges))
    reference = (w, w, -u - v) if w or u + v else (0, 0, 1)
    along = unit(summed(reference, reciprocal))
    across = cross(z, along)
    turn = math.radians(rotation)
    x = summed((math.cos(turn), -math.sin(turn)), (along, across))
    y = summed((math.sin(turn), math.cos(turn)), (along, across))
    s, c = math.sin(math.radians(tilt)), math.cos(math.radians(tilt))
    detector = [0, 1, 0], [-s, 0, c], [c, 0, s]  # x, y, z in sample axes
    g = [[sum(p[i] * q[j] for p, q in zip((x, y, z), detector)) for j in range(3)] for i in range(3)]
    phi = math.acos(max(-1.0, min(1.0, g[2][2])))
    if math.sin(phi) > 1e-8:
        angles = math.atan2(g[2][0], -g[2][1]), phi, math.atan2(g[0][2], g[1][2])
    else:  # only the sum, or the difference, of the other two is fixed
        angles = math.atan2(g[0][1], g[0][0]), phi, 0.0
    return [math.degrees(angle) % 360 for angle in angles]


def main():
    words = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    words.add_argument("crystal", help="crystal file (.cry)")
    words.add_argument("numbers", nargs=4, type=float, metavar="NUMBER", help="u v w and the rotation")
    words.add_argument("--tilt", type=float, default=70, help="of the sample less that of the screen, degrees")
    given = words.parse_args([word.rstrip(".") for word in sys.argv[1:]])  # "-571." as the list has it
    try:
        with open(given.crystal, encoding="latin-1", newline="") as file:
            cell = [float(field) for field in next(csv.reader(file))[:6]]
        if len(cell) < 6:
            raise ValueError("the first line has fewer than six numbers")
        angles = euler_angles(cell, given.numbers[:3], given.numbers[3], given.tilt)
    except (OSError, ValueError, ZeroDivisionError, StopIteration) as error:
        sys.exit("euler.py: %s: %s" % (given.crystal, error))
    print("phi1 %.2f Phi %.2f phi2 %.2f" % tuple(angles))


if __name__ == "__main__":
    main()
