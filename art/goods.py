"""Tea, linen, wood and gifts, each standing on the point (0, 0)."""

from pottery import cup
from shapes import (
    CHERRY, CREAM, GREEN, HONEY, LEAF, MOSS, NIGHT, OAK, PINK, RUST, SAND, at, box, dark, form, leaf, light, line,
    oval, shadow, solid,
)


def _motif(kind):
    if kind == "needles":
        return "".join(line(f"M{x} 30L{x + 12} {y}", LEAF, 7) for x, y in ((-34, -28), (-16, -40), (2, -44), (20, -34)))
    if kind == "flower":
        petals = "".join(at(0, 0, oval(0, -24, 13, 20, "#ffffff"), 1, a) for a in range(0, 360, 72))
        return petals + oval(0, 0, 11, 11, HONEY)
    if kind == "sun":
        rays = "".join(at(0, 0, line("M0 -34V-46", RUST, 7), 1, a) for a in range(0, 360, 45))
        return oval(0, 0, 25, 25, RUST) + rays
    if kind == "pine":
        return "".join(form(f"M0 {y}L{w} {y + 34}H{-w}Z", GREEN) for y, w in ((-50, 22), (-30, 32), (-8, 42))) + box(-5, 26, 10, 16, dark(OAK, 0.4))
    if kind == "mint":
        return leaf(LEAF, 0.8, 0, 0, 34) + leaf(MOSS, 0.66, -58, -2, 32) + leaf(MOSS, 0.66, 58, 2, 32)
    petals = oval(0, 0, 36, 34, PINK) + oval(-6, -4, 26, 25, dark(PINK, 0.08)) + oval(4, -6, 18, 17, light(PINK, 0.2)) + oval(0, -6, 9, 9, dark(PINK, 0.2))
    return leaf(LEAF, 0.5, -110, -24, 24) + leaf(LEAF, 0.5, 110, 24, 24) + petals


def bag(colour, kind, band):
    body = "M-92 0C-98 -80 -94 -160 -86 -226H86C94 -160 98 -80 92 0Z"
    label = box(-58, -160, 116, 112, CREAM, 10) + at(0, -104, _motif(kind), 0.86)
    fold = solid("M-90 -244C-88 -262 88 -262 90 -244L88 -214H-88Z", dark(colour, 0.1), box(-100, -228, 200, 6, dark(colour, 0.25)), 18)
    strip = box(-110, -26, 220, 12, band)
    pleats = line("M-80 -214C-86 -140 -86 -70 -80 -2", dark(colour, 0.22), 3) + line("M80 -214C86 -140 86 -70 80 -2", dark(colour, 0.3), 3)
    return shadow(98, 14) + solid(body, colour, strip + pleats + label, 24) + fold


def heap(colour):
    grains = "".join(at(x, y, oval(0, 0, 15, 6, c), 1, t) for x, y, t, c in (
        (-46, -4, 12, colour), (-26, -12, -20, dark(colour)), (-4, -16, 8, colour), (20, -12, 30, dark(colour)), (42, -4, -14, colour),
        (-18, -2, 24, light(colour, 0.2)), (10, -2, -10, light(colour, 0.2)), (30, -2, 10, dark(colour))))
    return shadow(58, 8, 2) + grains


def folded(colours):
    """A pile of folded cloths, each with its colour and the colour of its stripes or None; the lowest first."""
    out, y = shadow(124, 14), 0
    for i, (colour, stripe) in enumerate(colours):
        w = 118 - 4 * (i % 2)
        path = f"M{-w} {y}C{-w - 14} {y - 8} {-w - 14} {y - 30} {-w} {y - 38}H{w}C{w + 4} {y - 34} {w + 4} {y - 4} {w} {y}Z"
        inner = line(f"M{-w} {y - 19}H{w}", dark(colour, 0.22), 3)
        if stripe:
            inner += "".join(box(x, y - 40, 9, 42, stripe) for x in (-64, -46, 40, 58))
        out += solid(path, colour, inner, 16)
        y -= 40
    return out


def napkin_fan(colour=SAND):
    """One napkin folded into a leaf, as it stands on a plate."""
    return (shadow(70, 12) + solid("M0 -196C-44 -140 -76 -70 -66 -4H66C76 -70 44 -140 0 -196Z", colour, line("M0 -190V0", dark(colour, 0.2), 4)
            + line("M0 -150C-20 -100 -34 -50 -34 0", dark(colour, 0.14), 4) + line("M0 -150C20 -100 34 -50 34 0", dark(colour, 0.26), 4), 30)
            + box(-70, -34, 140, 22, RUST, 9))


def tablecloth(colour=MOSS):
    cloth = "M-168 -176C-60 -190 60 -190 168 -176C176 -120 186 -66 192 -24C170 -2 152 -30 128 -14C104 2 84 -28 60 -12C36 4 16 -26 -8 -12C-34 4 -56 -28 -80 -12C-104 2 -126 -28 -148 -12C-164 -2 -178 -8 -192 -24C-186 -66 -176 -120 -168 -176Z"
    folds = "".join(line(f"M{x} -168C{x * 1.04} -110 {x * 1.08} -60 {x * 1.1} -10", dark(colour, 0.2), 5) for x in (-120, -66, 50, 108))
    return (box(-130, -60, 18, 92, dark(OAK, 0.2), 4) + box(112, -60, 18, 92, dark(OAK, 0.3), 4) + at(0, 30, shadow(160, 10)) + solid(cloth, colour, folds + line("M-200 -30C-100 -46 100 -46 200 -30", light(colour, 0.35), 5), 20)
            + oval(0, -180, 168, 15, light(colour, 0.22)))


def runner(colour=SAND):
    top = form("M-190 -120L-120 -176H120L190 -120Z", light(OAK, 0.1)) + box(-190, -120, 380, 20, OAK, 3) + box(-166, -102, 20, 108, dark(OAK, 0.12), 3) + box(146, -102, 20, 108, dark(OAK, 0.24), 3)
    cloth = form("M-64 -120L-44 -176H44L64 -120Z", light(colour, 0.3)) + solid("M-64 -120H64V-26H-64Z", colour, box(-70, -56, 140, 8, RUST) + box(-70, -42, 140, 4, RUST), 16)
    fringe = "".join(line(f"M{x} -24V-6", colour, 6) for x in range(-58, 62, 13))
    return shadow(190, 12) + top + cloth + fringe + at(0, -146, cup(), 0.42)


def towel(colour=CREAM):
    cloth = "M-84 -262H84V-30C60 -22 30 -34 0 -28C-30 -22 -60 -34 -84 -28Z"
    grid = "".join(line(f"M{x} -262V-20", dark(colour, 0.1), 3) for x in range(-80, 96, 16)) + "".join(line(f"M-90 {y}H90", dark(colour, 0.1), 3) for y in range(-256, -20, 16))
    return (box(-130, -284, 260, 14, OAK, 7) + solid(cloth, colour, grid + box(-90, -84, 180, 12, GREEN) + box(-90, -64, 180, 5, GREEN), 16)
            + box(-88, -286, 176, 26, dark(colour, 0.06), 8))


def apron(colour=NIGHT):
    body = "M-50 -270H50C54 -218 70 -190 106 -172V-14C60 -2 -60 -2 -106 -14V-172C-70 -190 -54 -218 -50 -270Z"
    pockets = box(-78, -126, 68, 74, light(colour, 0.12), 6) + box(10, -126, 68, 74, light(colour, 0.06), 6) + line("M-78 -112H-10", light(colour, 0.4), 3) + line("M10 -112H78", light(colour, 0.3), 3)
    return (line("M-46 -268C-60 -320 60 -320 46 -268", dark(colour, 0.2), 10) + line("M-104 -166C-140 -150 -146 -120 -134 -92", dark(colour, 0.1), 8) + line("M104 -166C140 -150 146 -120 134 -92", dark(colour, 0.3), 8)
            + at(-44, -118, box(-7, -64, 14, 80, OAK, 6) + oval(0, -70, 17, 24, OAK)) + solid(body, colour, pockets, 24))


def grain(colour, w, h):
    return "".join(line(f"M{-w} {y}C{-w / 2} {y - 10} {w / 3} {y + 12} {w} {y - 4}", dark(colour, 0.12), 3) for y in range(-h + 18, 0, 26))


def board(colour=OAK):
    path = "M-160 -196C-160 -214 -150 -220 -136 -220H136C150 -220 160 -214 160 -196V-26C160 -8 150 0 136 0H-136C-150 0 -160 -8 -160 -26Z"
    groove = f'<rect x="-132" y="-194" width="264" height="168" rx="16" fill="none" stroke="{dark(colour, 0.22)}" stroke-width="7"/>'
    return shadow(150, 12) + solid(path, colour, grain(colour, 170, 210) + groove, 10) + oval(118, -110, 10, 22, dark(colour, 0.45))


def board_round(colour=CHERRY):
    path = "M-22 -300C-22 -318 22 -318 22 -300V-236C80 -224 122 -176 122 -118C122 -52 68 0 0 0C-68 0 -122 -52 -122 -118C-122 -176 -80 -224 -22 -236Z"
    return shadow(96, 12) + solid(path, colour, grain(colour, 130, 300), 12) + oval(0, -286, 8, 8, dark(colour, 0.5))


def loaf():
    crust = "#b9773a"
    body = "M-112 0C-134 -10 -130 -92 -66 -100C-20 -106 40 -106 76 -98C128 -88 132 -10 112 0Z"
    cuts = "".join(line(f"M{x} -88C{x + 16} -70 {x + 18} -52 {x + 14} -36", light(crust, 0.5), 11) for x in (-62, -10, 42))
    return shadow(108, 10) + solid(body, crust, cuts, 14)


def spoon(colour=OAK, long=250):
    return at(0, 0, solid(f"M-8 {-long}C-8 {-long - 10} 8 {-long - 10} 8 {-long}L11 -96C48 -88 50 -20 34 -4C14 6 -20 6 -36 -6C-50 -26 -46 -88 -11 -96Z", colour, oval(0, -46, 24, 32, dark(colour, 0.14)), 6))


def fork(colour=CHERRY, long=250):
    return solid(f"M-8 {-long}C-8 {-long - 10} 8 {-long - 10} 8 {-long}L11 -110C42 -104 44 -70 42 0H24L20 -50L12 0H-12L-20 -50L-24 0H-42C-44 -70 -42 -104 -11 -110Z", colour, "", 6)


def dipper():
    rings = "".join(oval(0, y, w, 11, OAK) + oval(0, y + 4, w, 9, dark(OAK, 0.2)) for y, w in ((-92, 26), (-74, 36), (-56, 40), (-38, 36), (-20, 26)))
    return box(-8, -250, 16, 160, OAK, 8) + box(1, -250, 7, 160, dark(OAK, 0.15), 4) + rings


def honey():
    jar = "M-84 -118C-96 -110 -98 -96 -98 -80V-20C-98 -6 -90 0 -78 0H78C90 0 98 -6 98 -20V-80C98 -96 96 -110 84 -118Z"
    return shadow(98, 14) + solid(jar, HONEY, form("M-110 -130H110V-86C60 -76 -60 -76 -110 -86Z", "#fbf3dd") + box(-56, -66, 112, 44, CREAM, 6) + at(0, -44, _motif("flower").replace("#ffffff", PINK), 0.36), 22) + oval(0, -118, 84, 14, "#f3e3b8") + oval(0, -116, 70, 9, HONEY)


def gift(colour=GREEN, ribbon=SAND, w=120, h=150):
    bow = form("M0 0C-20 -44 -74 -50 -70 -18C-68 4 -28 6 0 0Z", ribbon) + form("M0 0C20 -44 74 -50 70 -18C68 4 28 6 0 0Z", dark(ribbon, 0.1)) + oval(0, -4, 14, 12, dark(ribbon, 0.2))
    return (shadow(w, 14) + solid(f"M{-w} {-h}H{w}V0H{-w}Z", colour, box(-16, -h, 32, h, ribbon), 28) + solid(f"M{-w - 10} {-h - 34}H{w + 10}V{-h}H{-w - 10}Z", light(colour, 0.1), box(-16, -h - 40, 32, 44, ribbon), 28) + at(0, -h - 34, bow))


def voucher():
    card = "M-164 -206H164V0H-164Z"
    text = box(-132, -92, 150, 10, dark(SAND, 0.25), 5) + box(-132, -68, 110, 10, dark(SAND, 0.25), 5) + line("M-132 -34C-110 -46 -96 -22 -74 -34C-60 -42 -50 -30 -40 -34", GREEN, 4)
    return (at(10, 6, form(card, "#2a1d12", 'opacity=".14"')) + at(-6, -16, form(card, light(MOSS, 0.2)), 1, -5) + form(card, CREAM) + box(-164, -206, 328, 58, GREEN) + text
            + at(0, -177, leaf(LEAF, 0.5, 0, -118, 18) + leaf(MOSS, 0.42, 55, -114, 16)) + box(78, -206, 26, 206, RUST) + at(91, -112, form("M0 0C-20 -44 -70 -44 -64 -14C-60 6 -28 6 0 0Z", RUST) + form("M0 0C20 -44 70 -44 64 -14C60 6 28 6 0 0Z", dark(RUST, 0.12)) + oval(0, -4, 13, 11, dark(RUST, 0.25))))
