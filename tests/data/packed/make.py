#!/usr/bin/env python3
"""Makes the packed files that the tests and the fuzz target read: make.py FOLDER...

Each is put together field by field from the tables in docs/packed-file.md, with nothing of the program's own code.
"""
import struct
import sys
import zlib
from pathlib import Path

SHOP = b'<Tarnwick><Shop><Version>1.2.0</Version><Name>Cups</Name></Shop></Tarnwick>'
PICTURE = bytes(range(256)) * 3
PAGE = b'<!--1.2.0-->\r\n<h1><!--:shop_name:--></h1>\r\n' * 20


def header(count, version=b'1.2.0', flag=-1):
    return struct.pack('<IiH', 0, count, len(version)) + version + struct.pack('<h', flag)


def legacy_header(count):
    return struct.pack('<IiH', 0, count, 0) + b'\xff\xff\x12\x34'


def entry(path, flag, size, deflated_size, data):
    return struct.pack('<hH', flag, len(path)) + path + struct.pack('<ii', size, deflated_size) + data


def deflated(path, content, size=None):
    stream = zlib.compress(content)
    return entry(path, -1, len(content) if size is None else size, len(stream), stream)


def stored(path, content):
    return entry(path, 0, len(content), 0, content)


ENTRIES = [
    deflated(b'shop.xml', SHOP),
    deflated(b'pictures\\cup.png', PICTURE),
    deflated(b'templates\\main.html', PAGE),
]
BODY = b''.join(ENTRIES)
CURRENT = header(3) + BODY
FOREIGN = [
    b'', b'Pictures\\cup.png', b'pictures', b'pictures\\', b'pictures\\.', b'pictures\\..',
    b'pictures\\deep\\..', b'pictures\\../../outside', b'pictures\\/outside', b'pictures\\a\0b', b'pictures/cup.png',
    b'templates\\..', b'templates\\../outside', b'backups\\x.kvb', b'countries.txt', b'..\\outside', b'/outside',
    b'\\shop.xml', b'shop.xml\0',
]

FILES = {
    # As they should be.
    'current': CURRENT,
    'stored': header(3, flag=0) + stored(b'shop.xml', SHOP) + stored(b'pictures\\cup.png', PICTURE) +
              stored(b'templates\\main.html', PAGE),
    'raw_entry_among_deflated': header(3) + ENTRIES[0] + stored(b'pictures\\cup.png', PICTURE) + ENTRIES[2],
    'legacy': legacy_header(3) + BODY,
    'older': header(3, b'1.1.9') + BODY,
    'newer': header(3, b'1.3.0') + BODY,
    'version_1_10_0': header(3, b'1.10.0') + BODY,
    'stale_tail': CURRENT + CURRENT[40:],
    'no_entries': header(0),
    'names_in_utf8': header(2) + deflated(b'shop.xml', SHOP) +
                     deflated('pictures\\M\u00fcller \u20ac \u6771.png'.encode(), PICTURE),
    'names_in_windows_1252': header(2) + deflated(b'shop.xml', SHOP) + deflated(b'pictures\\M\xfcller \x80.png', PICTURE),
    'folders_below_pictures': header(2) + deflated(b'shop.xml', SHOP) + deflated(b'pictures\\deep\\down\\cup.png', PICTURE),
    'foreign_paths': header(len(FOREIGN) + 1) + b''.join(stored(path, b'foreign') for path in FOREIGN) +
                     deflated(b'shop.xml', SHOP),
    'shop_in_capitals': header(1) + stored(b'SHOP.XML', SHOP),
    'flags_of_other_numbers': header(2, flag=1) + entry(b'shop.xml', 2, len(SHOP), len(zlib.compress(SHOP)),
                                                        zlib.compress(SHOP)) +
                              entry(b'pictures\\cup.png', 0, 3, 77, b'cup'),
    # The size that an entry tells is not what comes out.
    'longer_than_told': header(2) + deflated(b'shop.xml', b'x' * 62, 50) + deflated(b'pictures\\a', b'y' * 164, 150),
    'too_long_for_its_room': header(2) + deflated(b'shop.xml', b'x' * 63, 50) + deflated(b'pictures\\a', b'y' * 165, 150),
    'shorter_than_told': header(1) + deflated(b'shop.xml', SHOP, 0x7fffffff),
    'not_inflatable': header(2) + entry(b'shop.xml', -1, 100, 12, b'not a stream') +
                      entry(b'pictures\\empty', -1, 100, 0, b''),
    'promises_gigabytes': header(1) + deflated(b'pictures\\big', b'\0' * 100000, 0x7fffffff),
    # Cut off, or not a packed file.
    'nothing': b'',
    'cut_in_header': CURRENT[:9],
    'cut_in_version': CURRENT[:13],
    'cut_in_entry': CURRENT[:len(header(3)) + len(ENTRIES[0]) + 7],
    'cut_in_last_data': CURRENT[:-1],
    'cut_legacy_header': legacy_header(0)[:13],
    'count_too_large': header(4) + BODY,
    'count_largest': header(0x7fffffff) + BODY,
    'count_below_0': header(-1) + BODY,
    'size_below_0': header(2) + ENTRIES[0] + entry(b'pictures\\a', 0, -5, 0, b'12345'),
    'deflated_size_below_0': header(2) + ENTRIES[0] + entry(b'pictures\\a', -1, 5, -5, b'12345'),
    'size_past_the_end': header(2) + ENTRIES[0] + entry(b'pictures\\a', 0, 0x7fffffff, 0, b'12345'),
    'path_past_the_end': header(2) + ENTRIES[0] + struct.pack('<hH', 0, 0xffff) + b'pictures\\a',
    'version_past_the_end': struct.pack('<IiH', 0, 3, 0xffff) + b'1.2.0' + BODY,
    'name_twice': header(3) + ENTRIES[0] + stored(b'pictures\\a', b'first') + stored(b'PICTURES\\A', b'second'),
    'zeros': bytes(64),
    'text': SHOP * 3,
}

for folder in sys.argv[1:]:
    for name, content in FILES.items():
        Path(folder, name).write_bytes(content)
