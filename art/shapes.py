"""Colours and the simple forms that every thing in the pictures is made of."""

INK, GREEN, MOSS, RUST, CLAY, SAND = "#2b2a28", "#2f5d50", "#7f9169", "#b4623c", "#cd9168", "#e8d9bf"
FOG, CREAM, OAK, CHERRY, NIGHT, AMBER = "#c6cdc7", "#f6efe2", "#c9a06b", "#b9794f", "#3a4a45", "#c8812f"
LEAF, PINK, BLUE, HONEY, BRICK = "#6d8f4e", "#d79a92", "#8ea7b0", "#e0a63a", "#a0441f"


def mix(colour, other, part):
    """The colour with a part (0 to 1) of the other one in it."""
    pairs = zip((colour[1:3], colour[3:5], colour[5:7]), (other[1:3], other[3:5], other[5:7]))
    return "#" + "".join(f"{round(int(a, 16) * (1 - part) + int(b, 16) * part):02x}" for a, b in pairs)


def dark(colour, part=0.18):
    return mix(colour, "#2a1d12", part)


def light(colour, part=0.35):
    return mix(colour, "#ffffff", part)


_clips = 0


def solid(path, colour, inside="", shift=26):
    """A closed form with a shadow along its right side; what stands inside is cut off at its edge."""
    global _clips
    _clips += 1
    name = f"c{_clips}"
    return (f'<clipPath id="{name}"><path d="{path}"/></clipPath><path d="{path}" fill="{dark(colour)}"/>'
            f'<g clip-path="url(#{name})"><path d="{path}" fill="{colour}" transform="translate({-shift} -4)"/>{inside}</g>')


def form(path, colour, extra=""):
    return f'<path d="{path}" fill="{colour}" {extra}/>'


def line(path, colour, width=4, extra=""):
    return (f'<path d="{path}" fill="none" stroke="{colour}" stroke-width="{width}" stroke-linecap="round" '
            f'stroke-linejoin="round" {extra}/>')


def oval(x, y, rx, ry, colour, extra=""):
    return f'<ellipse cx="{x}" cy="{y}" rx="{rx}" ry="{ry}" fill="{colour}" {extra}/>'


def box(x, y, w, h, colour, r=0, extra=""):
    return f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{r}" fill="{colour}" {extra}/>'


def at(x, y, what, scale=1.0, turn=0):
    return f'<g transform="translate({x} {y}) scale({scale}) rotate({turn})">{what}</g>'


def shadow(rx, ry=16, x=6):
    return oval(x, 2, rx, ry, "#2a1d12", 'opacity=".16"')


def leaf(colour, size=1.0, turn=0, x=0, y=0):
    body = form("M0 0C-20 -18 -20 -52 0 -74C20 -52 20 -18 0 0Z", colour) + line("M0 -4V-60", dark(colour, 0.25), 3)
    return at(x, y, body, size, turn)


def steam(x, y, colour="#ffffff"):
    waves = "".join(line(f"M{dx} 0C{dx - 16} -20 {dx + 16} -34 {dx} -56", colour, 6, 'opacity=".75"') for dx in (-26, 0, 26))
    return at(x, y, waves)


def tomato(x, y, r=30):
    return at(x, y, oval(4, r - 2, r, 8, "#2a1d12", 'opacity=".18"') + oval(0, 0, r, r * 0.9, "#c2452d") + oval(-r * 0.3, -r * 0.3, r * 0.22, r * 0.16, "#ffffff", 'opacity=".55"')
              + form(f"M0 {-r * 0.9}L-12 {-r * 0.62}L-2 {-r * 0.7}L0 {-r * 0.5}L4 {-r * 0.7}L13 {-r * 0.62}Z", LEAF))
