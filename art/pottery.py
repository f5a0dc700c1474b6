"""Pots, cups, plates and dishes, each standing on the point (0, 0)."""

from shapes import (
    AMBER, BLUE, CREAM, FOG, GREEN, LEAF, MOSS, NIGHT, OAK, RUST, at, box, dark, form, leaf, light, line, oval, shadow,
    solid, tomato,
)


def pot_round(glaze=FOG, clay=RUST):
    body = "M-118 -92C-118 -160 -64 -186 0 -186C64 -186 118 -160 118 -92C118 -36 74 -8 52 0H-52C-74 -8 -118 -36 -118 -92Z"
    drip = form("M-140 -200H140V-78C120 -58 104 -84 84 -66C62 -46 44 -82 20 -60C0 -42 -24 -76 -46 -58C-70 -38 -92 -72 -140 -56Z", glaze)
    drip += form("M66 -200H140V-78C126 -64 112 -72 98 -72C108 -110 96 -160 66 -186Z", dark(glaze, 0.12))
    return (shadow(118) + line("M104 -134C176 -160 180 -44 96 -52", dark(glaze, 0.1), 20)
            + form("M-96 -52C-150 -66 -138 -128 -178 -158L-150 -170C-116 -152 -112 -124 -84 -118Z", dark(glaze, 0.06))
            + oval(-164, -164, 15, 7, dark(glaze, 0.35), 'transform="rotate(-22 -164 -164)"')
            + solid(body, clay, drip) + form("M-64 -178C-54 -212 54 -212 64 -178C40 -168 -40 -168 -64 -178Z", light(glaze, 0.2))
            + form("M14 -204C42 -200 58 -190 64 -178C50 -172 36 -171 20 -170C32 -182 28 -196 14 -204Z", dark(glaze, 0.1))
            + oval(0, -213, 17, 14, clay) + oval(-5, -217, 6, 5, light(clay)) + line("M-84 -142C-74 -158 -60 -166 -44 -170", "#ffffff", 8, 'opacity=".55"'))


def pot_side(clay=RUST):
    body = "M-104 -70C-104 -118 -58 -136 0 -136C58 -136 104 -118 104 -70C104 -28 70 -6 48 0H-48C-70 -6 -104 -28 -104 -70Z"
    return (shadow(108) + form("M70 -92L186 -146C204 -150 208 -126 194 -118L86 -58Z", dark(clay, 0.1))
            + oval(196, -133, 9, 15, dark(clay, 0.35), 'transform="rotate(-20 196 -133)"')
            + form("M-92 -66C-116 -72 -122 -92 -140 -102L-120 -118C-100 -112 -92 -106 -80 -104Z", dark(clay, 0.12))
            + solid(body, clay, line("M-120 -52H120", dark(clay, 0.2), 3) + line("M-120 -44H120", dark(clay, 0.2), 2))
            + form("M-62 -128C-50 -152 50 -152 62 -128C36 -120 -36 -120 -62 -128Z", light(clay, 0.12))
            + oval(0, -154, 15, 12, dark(clay, 0.15)) + line("M-76 -96C-68 -108 -56 -114 -44 -116", "#ffffff", 7, 'opacity=".4"'))


def pot_glass(tea=AMBER):
    body = "M-104 -100C-104 -160 -60 -186 0 -186C60 -186 104 -160 104 -100C104 -44 84 0 60 0H-60C-84 0 -104 -44 -104 -100Z"
    glass = "#e9f0ee"
    inside = box(-120, -104, 240, 120, tea, 0, 'opacity=".88"') + oval(0, -104, 108, 12, light(tea, 0.3))
    inside += box(-34, -190, 68, 150, "#ffffff", 14, 'opacity=".45"') + leaf(LEAF, 0.55, 24, -8, -52) + leaf(LEAF, 0.55, -30, 10, -50) + leaf(dark(LEAF), 0.5, 0, 2, -56)
    return (shadow(106) + line("M94 -140C166 -160 168 -50 92 -56", "#dbe6e3", 16) + line("M94 -140C166 -160 168 -50 92 -56", "#b9cac6", 4)
            + form("M-92 -72C-136 -84 -130 -132 -164 -156L-142 -168C-112 -150 -104 -128 -84 -124Z", "#dbe6e3")
            + solid(body, glass, inside, 10) + line(body, "#b9cac6", 4) + box(-56, -202, 112, 22, OAK, 8) + box(0, -202, 56, 22, dark(OAK, 0.12), 8)
            + oval(0, -212, 16, 12, OAK) + line("M-82 -136C-76 -152 -64 -162 -50 -168", "#ffffff", 8, 'opacity=".9"'))


def mug(glaze=FOG, tea="#6a3f22"):
    body = "M-78 -150C-78 -80 -74 -30 -60 -8C-56 0 56 0 60 -8C74 -30 78 -80 78 -150Z"
    return (shadow(76) + line("M72 -118C138 -128 136 -34 64 -42", dark(glaze, 0.12), 18)
            + solid(body, glaze, form("M-90 -38C-40 -30 40 -30 90 -38V10H-90Z", RUST, 'opacity=".9"'))
            + oval(0, -150, 78, 17, light(glaze, 0.3)) + oval(0, -147, 67, 12, tea) + line("M-58 -118C-56 -96 -54 -80 -50 -66", "#ffffff", 7, 'opacity=".5"'))


def cup(glaze=CREAM, tea="#a9b35d"):
    body = "M-62 -96C-60 -48 -48 -14 -30 0H30C48 -14 60 -48 62 -96Z"
    return (shadow(54, 12) + solid(body, glaze, form("M-80 -30C-30 -24 30 -24 80 -30V10H-80Z", BLUE))
            + oval(0, -96, 62, 13, light(glaze, 0.5)) + oval(0, -94, 53, 9, tea))


def bowl(glaze=NIGHT, fill="#8fae4f", wide=104):
    k = wide / 104
    body = f"M{-wide} -104C{-wide} -52 {-70 * k} -18 {-40 * k} -12L{-36 * k} 0H{36 * k}L{40 * k} -12C{70 * k} -18 {wide} -52 {wide} -104Z"
    return (shadow(88 * k, 14) + solid(body, glaze, line(f"M{-wide} -70C{-40 * k} -58 {40 * k} -58 {wide} -70", light(glaze, 0.2), 4))
            + oval(0, -104, wide, 20, light(glaze, 0.18)) + oval(0, -101, wide - 12, 14, fill)
            + line(f"M{-80 * k} -84C{-76 * k} -62 {-66 * k} -46 {-54 * k} -36", "#ffffff", 6, 'opacity=".35"'))


def caddy(colour=GREEN):
    body = "M-78 -150V-10C-60 6 60 6 78 -10V-150Z"
    label = form("M-90 -112C-50 -100 50 -100 90 -112V-46C50 -34 -50 -34 -90 -46Z", CREAM) + leaf(LEAF, 0.55, 0, 0, -48) + leaf(LEAF, 0.42, -48, -6, -50) + leaf(LEAF, 0.42, 48, 6, -50)
    return (shadow(82, 14) + solid(body, colour, label, 20) + solid("M-82 -186V-150C-60 -136 60 -136 82 -150V-186Z", dark(colour, 0.2), "", 20)
            + oval(0, -186, 82, 17, light(colour, 0.16)) + oval(0, -188, 50, 9, light(colour, 0.3)))


def whisk():
    tines = "".join(line(f"M{i * 5} -86C{i * 11} -60 {i * 13} -34 {i * 10} -4", OAK if i % 2 else light(OAK, 0.3), 5) for i in range(-6, 7))
    grip = "M-30 -236C-30 -246 30 -246 30 -236L34 -92H-34Z"
    knots = box(-40, -188, 80, 7, dark(OAK, 0.3)) + box(-40, -140, 80, 7, dark(OAK, 0.3))
    return shadow(72, 12) + tines + solid(grip, OAK, knots, 14) + box(-36, -98, 72, 14, NIGHT, 5) + oval(0, -239, 30, 7, dark(OAK, 0.25))


def plate_top(glaze=FOG, r=170):
    """A plate seen from above; its middle is the point (0, 0)."""
    return (oval(8, 12, r, r, "#2a1d12", 'opacity=".16"') + oval(0, 0, r, r, dark(glaze, 0.1)) + oval(-4, -5, r - 5, r - 5, glaze) + oval(0, 0, r * 0.7, r * 0.7, dark(glaze, 0.12))
            + oval(3, 4, r * 0.68, r * 0.68, light(glaze, 0.25)) + line(f"M{-r * 0.86} {-r * 0.2}A{r * 0.88} {r * 0.88} 0 0 1 {-r * 0.2} {-r * 0.86}", "#ffffff", 7, 'opacity=".55"')
            + f'<circle r="{r - 4}" fill="none" stroke="{RUST}" stroke-width="4" opacity=".65"/>')


def cutlery(x_fork, x_knife):
    steel = "#9aa5a3"
    f = box(-5, -40, 10, 170, steel, 5) + form("M-22 -130V-74C-22 -52 22 -52 22 -74V-130H12V-82H5V-130H-5V-82H-12V-130Z", steel)
    k = box(-6, 0, 12, 130, steel, 6) + form("M-6 8V-130C14 -122 18 -60 12 8Z", light(steel, 0.25))
    return at(x_fork, 0, f) + at(x_knife, 0, k)


def cake():
    return (form("M-70 34L56 -40C70 -30 74 -10 66 6L-66 62Z", "#d8b27a") + form("M-70 34L56 -40C74 -26 76 -2 60 14Z", "#8a4b3a") + form("M-68 46L64 -10L66 6L-66 62Z", "#e9cfa2")
            + line("M-66 52L64 -2", RUST, 5) + oval(26, -24, 12, 11, "#c2452d") + leaf(LEAF, 0.3, 50, 34, -30))


def plates_pile():
    out = shadow(132, 14)
    for i, glaze in enumerate((RUST, FOG, FOG, MOSS, CREAM)):
        y = -i * 20
        out += form(f"M-140 {y - 24}C-120 {y - 4} -70 {y} -50 {y}H50C70 {y} 120 {y - 4} 140 {y - 24}Z", dark(glaze, 0.14))
        out += oval(0, y - 24, 140, 12, light(glaze, 0.1)) + oval(0, y - 23, 112, 8, dark(glaze, 0.06))
    return out


def dish(glaze=RUST, food=True):
    body = "M-160 -84C-156 -40 -124 -6 -92 0H92C124 -6 156 -40 160 -84Z"
    inside = "".join(tomato(x, -88, 26) for x in (-94, -36, 26, 88)) + leaf(LEAF, 0.6, -60, -60, -84) + leaf(LEAF, 0.6, 70, 56, -84) if food else ""
    return (shadow(132, 14) + box(-196, -84, 60, 24, dark(glaze, 0.08), 12) + box(136, -84, 60, 24, dark(glaze, 0.25), 12) + oval(0, -84, 160, 22, light(glaze, 0.25)) + oval(0, -81, 144, 16, dark(glaze, 0.25))
            + inside + solid(body, glaze, form("M-170 -30C-80 -18 80 -18 170 -30V10H-170Z", CREAM, 'opacity=".9"')) + line("M-160 -84C-120 -66 120 -66 160 -84", light(glaze, 0.3), 6))


def jug(glaze=BLUE):
    body = "M-66 -226L58 -238L80 -214C52 -184 66 -150 80 -116C98 -70 84 -16 58 0H-58C-84 -16 -98 -70 -80 -116C-66 -152 -62 -188 -66 -226Z"
    return (shadow(84, 14) + line("M-60 -196C-150 -206 -150 -90 -86 -92", dark(glaze, 0.1), 18) + solid(body, glaze, form("M-110 -70C-50 -56 50 -56 110 -70V-40C50 -26 -50 -26 -110 -40Z", CREAM))
            + form("M-66 -226L58 -238L80 -214C40 -206 -30 -208 -66 -226Z", dark(glaze, 0.35)) + line("M-52 -110C-62 -88 -62 -66 -56 -48", "#ffffff", 8, 'opacity=".5"'))


def branch():
    out = line("M0 0C-10 -60 -40 -110 -66 -150", dark(OAK, 0.3), 5) + line("M4 0C14 -70 30 -120 62 -168", dark(OAK, 0.3), 5) + line("M0 0C0 -60 4 -120 -4 -190", dark(OAK, 0.3), 5)
    for x, y, t in ((-66, -148, -40), (-44, -104, -80), (-30, -90, 10), (62, -166, 36), (40, -122, 80), (26, -96, -10), (-4, -186, 0), (-2, -130, -56), (4, -100, 56)):
        out += leaf(MOSS, 0.6, t, x, y)
    return out


def butter(glaze=CREAM):
    lid = "M-118 -30V-92C-118 -118 -98 -128 -76 -128H76C98 -128 118 -118 118 -92V-30Z"
    return (shadow(146, 12) + solid("M-156 -32H156C150 -10 130 0 112 0H-112C-130 0 -150 -10 -156 -32Z", RUST, "", 18) + solid(lid, glaze, form("M-130 -58H130V-46H-130Z", RUST, 'opacity=".85"'), 24)
            + oval(0, -138, 22, 15, RUST) + line("M-96 -84C-96 -100 -88 -108 -72 -110", "#ffffff", 7, 'opacity=".8"'))
