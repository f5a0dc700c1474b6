#!/usr/bin/env python3
"""Makes the small shop in shop/ and, in requests/, the body of every request that publishing it to an empty server takes,
numbered in order of sending, and single bodies for the rules that this shop does not show. The tests compare what the
program sends with these files byte for byte.

"@FOLDER@" in a body stands for the application folder. Run it in this folder after a change here; the files are kept
with it.
"""

import pathlib
import shutil

CRLF = b"\r\n"
BOUNDARY = b"AaB03x"


def field(name, value):
    return b"--" + BOUNDARY + CRLF + b'Content-Disposition: form-data; name="' + name + b'"' + CRLF + CRLF + value + CRLF


def head(login, password):
    fields = field(b"username", login) + field(b"password", password) + field(b"version", b"1.2.0")
    return fields + b"--" + BOUNDARY + CRLF


def upload(head_bytes, file_name, content_type, content):
    part = b'Content-Disposition: form-data; name="file[]"; filename="' + file_name + b'"' + CRLF
    part += b"Content-Type: " + content_type + CRLF + CRLF
    return head_bytes + part + content + CRLF + b"--" + BOUNDARY + b"--" + CRLF


TEMPLATES = ("cart category custompage footer header layout main menu product search checkout buying "
             "payed_cancel payed_ok").split()

PICTURES = {
    "cups.png": b"a row of cups",
    "blue.png": bytes(range(256)) + b"\r --AaB03x--\r\n",
    "pot.gif": b"",
    "logo.png": b"the logo\0\0",
}

SHOP = b"""<Tarnwick><Shop><Name>Cups</Name>
<Category><Id>1</Id><Picture>cups.png</Picture>
<Category><Id>2</Id><Picture></Picture><Product><Id>3</Id><Picture>C:\\shop\\blue.png</Picture></Product></Category>
<Product><Id>4</Id><Picture>pot.gif</Picture></Product>
<Product><Id>5</Id><Picture>BLUE.png</Picture></Product>
</Category>
<CustomPage><ImageName>page.png</ImageName></CustomPage>
<ShopDesign><HEADER_LOGO><FileName>logo.png</FileName></HEADER_LOGO></ShopDesign>
</Shop></Tarnwick>"""


def main():
    here = pathlib.Path(__file__).resolve().parent
    for folder in ("shop", "requests"):
        shutil.rmtree(here / folder, ignore_errors=True)
    for folder in ("shop/pictures", "shop/templates", "requests"):
        (here / folder).mkdir(parents=True)

    template_texts = {name: b"<!--1.2.0-->\r\n<p>" + name.encode() + b"</p>\n" for name in TEMPLATES}
    (here / "shop/shop.xml").write_bytes(SHOP)
    for name, content in PICTURES.items():
        (here / "shop/pictures" / name).write_bytes(content)
    for name, content in template_texts.items():
        (here / "shop/templates" / (name + ".html")).write_bytes(content)

    anna = head(b"anna", b"s3cret")
    sequence = [("list", anna), ("shop", upload(anna, rb"@FOLDER@\shop.xml", b"text/xml", SHOP))]
    for name, content in PICTURES.items():
        path = rb"@FOLDER@\pictures" + b"\\" + name.encode()
        sequence.append((name, upload(anna, path, b"image/gif", content)))
    for name in TEMPLATES:
        file_name = name.encode() + b".html"
        sequence.append((name, upload(anna, file_name, b"text/html", template_texts[name])))
    for number, (name, body) in enumerate(sequence):
        (here / "requests" / f"{number:02}-{name}.bin").write_bytes(body)

    singles = {
        "letters": upload(head("jürgen".encode("cp1252"), "5€".encode("cp1252")), "größe.png".encode("cp1252"),
                          b"image/gif", b"x"),
        "wide-letters": upload(head("анна".encode(), b""), "чашка.png".encode(), b"image/gif", b"x"),
    }
    for name, body in singles.items():
        (here / "requests" / f"{name}.bin").write_bytes(body)


if __name__ == "__main__":
    main()
