#!/usr/bin/env python3
"""Draws the pictures of the sample shop as SVG files.

Usage: draw.py FOLDER

Every thing in the shop is one function (in pottery.py and goods.py) that draws it standing on the point (0, 0), about
300 units wide or high, so that a product's picture and a category's picture are made of the same things. The table here
says which things stand in which picture.
"""

import sys
from pathlib import Path

from goods import (
    apron, bag, board, board_round, dipper, folded, fork, gift, heap, honey, loaf, napkin_fan, runner, spoon,
    tablecloth, towel, voucher,
)
from pottery import (
    bowl, branch, butter, caddy, cake, cup, cutlery, dish, jug, mug, plate_top, plates_pile, pot_glass, pot_round,
    pot_side, whisk,
)
from shapes import (
    BRICK, CHERRY, CLAY, CREAM, FOG, GREEN, HONEY, INK, LEAF, MOSS, NIGHT, OAK, PINK, RUST, SAND, at, box, form, leaf,
    light, line, mix, oval, steam, tomato,
)


def scene(w, h, ground, things, table=True, floor=0.74):
    """A quiet room: a wall with a lighter disc on it, and a table to stand on."""
    wall, disc, top = light(ground, 0.45), light(ground, 0.68), mix(ground, "#ffffff", 0.12)
    y = round(h * floor)
    out = box(0, 0, w, h, wall) + oval(w / 2, h * 0.46, h * 0.4, h * 0.4, disc)
    if table:
        out += box(0, y, w, h - y, top) + box(0, y, w, 3, light(top, 0.35))
    return out + things


def product(ground, things, **how):
    return 480, 480, scene(480, 480, ground, things, **how)


def category(ground, things, **how):
    return 640, 400, scene(640, 400, ground, things, **how)


def button(w, h, colour, words, icon=None, size=16, text="#ffffff"):
    out = f'<rect x="0.5" y="0.5" width="{w - 1}" height="{h - 1}" rx="{h / 2 - 0.5}" fill="{colour}"/>'
    x = w / 2
    if icon:
        out += at(h * 0.52, h / 2, icon(text), h / 48)
        x = (h * 0.8 + w - h * 0.36) / 2
    if words:
        out += f'<text x="{x}" y="{h / 2 + size * 0.35}" font-family="Liberation Sans" font-weight="bold" font-size="{size}" text-anchor="middle" fill="{text}">{words}</text>'
    return w, h, out


def icon_button(side, colour, icon, ink):
    return side, side, f'<circle cx="{side / 2}" cy="{side / 2}" r="{side / 2 - 0.5}" fill="{colour}"/>' + at(side / 2, side / 2, icon(ink), side / 48)


def lens(ink):
    return f'<circle cx="-2.5" cy="-2.5" r="8.5" fill="none" stroke="{ink}" stroke-width="3"/>' + line("M4 4L11 11", ink, 3.6)


def basket(ink):
    return line("M-12 -3H12L9.5 10.5H-9.5Z", ink, 2.8) + line("M-7 -3C-7 -15 7 -15 7 -3", ink, 2.8) + line("M-4 1.5V6M0 1.5V6M4 1.5V6", ink, 2.4)


def plus(ink):
    return line("M0 -8V8M-8 0H8", ink, 3.4)


def tick(ink):
    return line("M-9 0L-3 7L9 -7", ink, 3.6)


def arrow(ink):
    return line("M-9 0H9M2 -7L9 0L2 7", ink, 3.4)


def turn(ink):
    return line("M9.5 -3.5A10 10 0 1 0 10 3", ink, 3) + form("M13.5 -10.5L11.6 0.6L2.2 -4.6Z", ink)


def logo():
    fern = "".join(leaf(GREEN, 0.2 + 0.018 * i, s * (62 - 3 * i), 0, -44 + 9 * i) for i in range(5) for s in (-1, 1))
    mark = line("M0 6V-50", GREEN, 3.2) + leaf(GREEN, 0.26, 0, 0, -46) + fern
    words = f'<text x="36" y="41" font-family="Liberation Serif" font-size="35" letter-spacing="0.4" fill="{INK}">Brackenhus</text>'
    return 208, 60, at(14, 53, mark, 0.78) + words


def tea(colour, kind, band, leaves):
    return at(226, 372, bag(colour, kind, band), 1.08) + at(352, 404, heap(leaves), 1.1)


BAGS = {
    "sencha": (MOSS, "needles", GREEN), "jasmine": (mix(MOSS, CREAM, 0.45), "flower", MOSS), "morning": (NIGHT, "sun", RUST),
    "smoke": (mix(NIGHT, "#555555", 0.5), "pine", "#8c8c86"), "mint": (mix(GREEN, "#9fd0b5", 0.45), "mint", GREEN), "rose": (mix(PINK, CREAM, 0.25), "rose", RUST),
    "winter": (mix(CHERRY, NIGHT, 0.25), "sun", HONEY),
}
G_TEA, G_LINEN, G_WOOD, G_POT, G_TABLE, G_GIFT = "#b7c3a2", "#cfc2ae", "#d9b48a", "#c9b9a6", "#b9c2c2", "#c9a79a"

PICTURES = {
    "teapot-moor": product(G_POT, at(244, 382, pot_round(), 1.05)),
    "teapot-side": product("#b8bfae", at(226, 376, pot_side(), 1.15)),
    "teapot-glass": product("#d6c09a", at(244, 382, pot_glass(), 1.08)),
    "mug-breakfast": product("#b9b6a6", at(226, 386, mug(), 1.35) + steam(226, 168)),
    "cup-tasting": product("#b5c1c0", at(168, 386, cup(), 1.35) + at(320, 394, cup(CREAM, "#c08a3a"), 1.35)),
    "bowl-matcha": product("#b3c09c", at(240, 388, bowl(), 1.5)),
    "bowl-pair": product("#c8b9a8", at(152, 382, bowl(RUST, HONEY, 84), 1.12) + at(336, 394, bowl(FOG, "#7a5a3a", 84), 1.12)),
    "caddy": product("#c9bf9f", at(240, 388, caddy(), 1.3)),
    "whisk": product("#b5c29f", at(240, 398, whisk(), 1.25)),
    "tea-sencha": product(G_TEA, tea(*BAGS["sencha"], LEAF)),
    "tea-jasmine": product("#c5cdb0", tea(*BAGS["jasmine"], "#8b9a63")),
    "tea-morning": product("#cda98a", tea(*BAGS["morning"], "#5a3a26")),
    "tea-smoke": product("#b3b4ac", tea(*BAGS["smoke"], "#3b332c")),
    "tea-mint": product("#b4cdb9", tea(*BAGS["mint"], "#5f8f63")),
    "tea-rose": product("#d9b8ac", tea(*BAGS["rose"], "#b9776f")),
    "tea-winter": product("#c9a79b", tea(*BAGS["winter"], "#5b2f26")),
    "tablecloth": product(G_LINEN, at(240, 388, tablecloth(), 1.08) + at(206, 196, pot_side(), 0.42) + at(300, 198, cup(), 0.5), floor=0.84),
    "runner": product("#c4bfa9", at(240, 398, runner(), 1.1), floor=0.82),
    "napkins": product(G_LINEN, at(240, 396, folded([(SAND, None), (MOSS, None), (CREAM, None), (CLAY, None)]), 1.2)),
    "napkins-striped": product("#bfc3b0", at(240, 400, folded([(CREAM, RUST), (CREAM, MOSS), (CREAM, RUST), (CREAM, MOSS), (CREAM, RUST), (CREAM, MOSS)]), 1.1)),
    "towel": product("#a9bdb4", at(240, 428, towel(), 1.28), table=False),
    "apron": product("#cbb9a0", at(240, 452, apron(), 1.25), table=False),
    "board-oak": product(G_WOOD, at(240, 398, board(), 1.08) + tomato(166, 366, 34) + tomato(226, 378, 27) + at(318, 388, leaf(LEAF, 0.8, 70) + leaf(MOSS, 0.7, 110))),
    "board-round": product("#d3c3a6", at(196, 384, board_round(), 1.05) + at(306, 412, loaf(), 0.98)),
    "spoon": product("#c8bb9f", at(176, 398, spoon(OAK, 270), 1.22, 26), table=False),
    "servers": product("#c2c4ac", at(136, 388, spoon(CHERRY, 270), 1.16, 27) + at(344, 388, fork(CHERRY, 270), 1.16, -27), table=False),
    "dipper": product("#dcc48e", at(212, 392, honey(), 1.12) + at(306, 372, dipper(), 1.0, 22)),
    "plate-fog": product(G_TABLE, at(240, 240, plate_top(FOG, 158)) + at(240, 244, cutlery(-192, 196), 1.0), table=False),
    "plate-side": product("#d0b7a2", at(240, 240, plate_top(CLAY, 160)) + at(240, 236, cake(), 1.15), table=False),
    "dish-oval": product("#bfc4ae", at(240, 384, dish(), 1.12)),
    "jug": product("#c9bda6", at(254, 202, branch(), 0.8) + at(248, 398, jug(), 1.04)),
    "butter": product("#d3bf9b", at(240, 384, butter(), 1.22)),
    "gift-tea": product(G_GIFT, at(176, 388, gift(GREEN, SAND, 112, 130), 1.08) + at(346, 406, pot_side(), 0.6)),
    "gift-kitchen": product("#b9bfa8", at(262, 386, gift(RUST, CREAM, 128, 170), 1.1) + at(92, 404, spoon(OAK, 250), 0.98, 8)),
    "gift-voucher": product("#c7c0ae", at(240, 348, voucher(), 1.15), table=False),
    "cat-teaware": category(G_POT, at(268, 328, pot_round(), 1.0) + at(482, 342, cup(), 0.95)),
    "cat-teapots": category("#b8bfae", at(204, 324, pot_round(MOSS, CLAY), 0.86) + at(448, 340, pot_side(), 0.9)),
    "cat-cups": category("#bdbaaa", at(180, 334, mug(), 0.95) + at(338, 344, cup(), 1.05) + at(492, 338, bowl(), 0.9)),
    "cat-bowls": category("#b3c09c", at(232, 336, bowl(), 1.15) + at(456, 346, bowl(RUST, HONEY, 84), 0.95)),
    "cat-accessories": category("#c9bf9f", at(222, 334, caddy(), 1.0) + at(426, 344, whisk(), 0.98)),
    "cat-tea": category(G_TEA, at(150, 332, bag(*BAGS["rose"]), 0.8) + at(490, 332, bag(*BAGS["morning"]), 0.8) + at(320, 344, bag(*BAGS["sencha"]), 0.92)),
    "cat-green": category("#b9c69f", at(226, 330, bag(*BAGS["sencha"]), 0.9) + at(414, 340, bag(*BAGS["jasmine"]), 0.9) + at(530, 352, heap(LEAF), 0.9)),
    "cat-black": category("#cda98a", at(226, 330, bag(*BAGS["morning"]), 0.9) + at(414, 340, bag(*BAGS["smoke"]), 0.9) + at(530, 352, heap("#4a3224"), 0.9)),
    "cat-herbal": category("#c3ccb4", at(226, 330, bag(*BAGS["mint"]), 0.9) + at(414, 340, bag(*BAGS["rose"]), 0.9) + at(530, 352, heap("#a8766a"), 0.9)),
    "cat-linen": category(G_LINEN, at(232, 340, folded([(SAND, None), (MOSS, None), (CREAM, None), (CLAY, None), (FOG, None)]), 1.05) + at(470, 346, napkin_fan(), 1.05)),
    "cat-tablelinen": category("#bfc3ae", at(320, 338, tablecloth(CLAY), 1.08) + at(276, 148, pot_round(), 0.36) + at(372, 148, cup(), 0.5), floor=0.84),
    "cat-napkins": category("#cdbfa6", at(210, 346, napkin_fan(MOSS), 1.15) + at(430, 346, folded([(CREAM, RUST), (CREAM, MOSS), (CREAM, RUST), (CREAM, MOSS)]), 1.05)),
    "cat-kitchenlinen": category("#a9bdb4", at(210, 370, towel(), 1.1) + at(456, 372, apron(), 1.04), table=False),
    "cat-wood": category(G_WOOD, at(258, 340, board(), 0.98) + tomato(196, 322, 28) + tomato(250, 330, 22) + at(480, 348, spoon(CHERRY, 250), 0.98, 14)),
    "cat-boards": category("#d3c3a6", at(216, 338, board(), 0.92) + at(488, 332, board_round(), 0.86) + at(380, 350, loaf(), 0.66)),
    "cat-spoons": category("#c8bb9f", at(214, 340, spoon(OAK, 250), 1.0, -14) + at(318, 346, fork(CHERRY, 250), 1.0, 0) + at(424, 340, spoon(CHERRY, 250), 1.0, 14), table=False),
    "cat-tableware": category(G_TABLE, at(206, 340, plates_pile(), 0.98) + at(458, 194, branch(), 0.62) + at(452, 342, jug(), 0.86)),
    "cat-plates": category("#c3bcae", at(320, 338, plates_pile(), 1.35)),
    "cat-serving": category("#bfc4ae", at(258, 334, dish(), 1.02) + at(512, 344, jug(), 0.84)),
    "cat-seconds": category("#c7beb2", at(154, 336, cup(CLAY, SAND), 1.05) + at(312, 340, bowl(RUST, HONEY, 84), 0.9) + at(510, 338, plates_pile(), 0.7)),
    "cat-gifts": category(G_GIFT, at(216, 332, gift(GREEN, SAND, 104, 140), 1.0) + at(430, 344, gift(RUST, CREAM, 82, 96), 1.0)),
    "logo": logo(),
    "button-search": icon_button(44, GREEN, lens, "#ffffff"),
    "button-cart": icon_button(44, "#e7ede9", basket, GREEN),
    "button-find": button(116, 44, GREEN, "Find it", lens),
    "button-add": button(136, 40, GREEN, "Add to cart", plus, 15),
    "button-add-large": button(172, 48, GREEN, "Add to cart", basket, 17),
    "button-recalculate": icon_button(44, GREEN, turn, "#ffffff"),
    "button-checkout": button(188, 48, BRICK, "Go to checkout", arrow, 17),
    "button-order": button(164, 48, BRICK, "Make order", tick, 17),
}


def main():
    folder = Path(sys.argv[1])
    for name, (w, h, body) in PICTURES.items():
        text = f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" viewBox="0 0 {w} {h}">{body}</svg>\n'
        (folder / f"{name}.svg").write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
