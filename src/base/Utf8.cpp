#include "base/Utf8.h"

#include <cstdint>
#include <cstring>

namespace {

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0) == 0x80;
}

} // namespace

const unsigned char* skipAscii(const unsigned char* at, const unsigned char* end)
{
    while (end - at >= 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, sizeof word);
        if ((word & 0x8080808080808080ULL) != 0) {
            break;
        }
        at += 8;
    }
    while (at != end && *at < 0x80) {
        ++at;
    }
    return at;
}

int utf8SequenceLength(const unsigned char* at, const unsigned char* end)
{
    const auto left = end - at;
    if (left < 1) {
        return 0;
    }
    const unsigned char first = at[0];
    if (first < 0x80) {
        return 1;
    }
    // 0xC0 and 0xC1 could only start an overlong form; nothing starts with a continuation byte.
    if (first < 0xC2 || first > 0xF4 || left < 2 || !isContinuation(at[1])) {
        return 0;
    }
    if (first < 0xE0) {
        return 2;
    }
    const unsigned char second = at[1];
    if (first < 0xF0) {
        const bool overlong = first == 0xE0 && second < 0xA0;
        const bool surrogate = first == 0xED && second > 0x9F;
        return left >= 3 && !overlong && !surrogate && isContinuation(at[2]) ? 3 : 0;
    }
    const bool overlong = first == 0xF0 && second < 0x90;
    const bool tooLarge = first == 0xF4 && second > 0x8F;
    return left >= 4 && !overlong && !tooLarge && isContinuation(at[2]) && isContinuation(at[3]) ? 4 : 0;
}

bool isValidUtf8(QByteArrayView bytes)
{
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const unsigned char* const end = at + bytes.size();
    for (at = skipAscii(at, end); at != end; at = skipAscii(at, end)) {
        const int length = utf8SequenceLength(at, end);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}
