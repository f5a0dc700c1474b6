// The exact rule of what UTF-8 is, shared by the readers of text and of XML.
#pragma once

#include <QByteArrayView>

// Whether the bytes are UTF-8 from end to end: shortest forms only, no surrogates, nothing past U+10FFFF, nothing cut
// off.
bool isValidUtf8(QByteArrayView bytes);

// The length of the UTF-8 sequence that starts at `at`, 1 to 4, or 0 when the bytes up to `end` do not start with one.
int utf8SequenceLength(const unsigned char* at, const unsigned char* end);

// The first byte that is not plain ASCII, `end` when there is none.
const unsigned char* skipAscii(const unsigned char* at, const unsigned char* end);
