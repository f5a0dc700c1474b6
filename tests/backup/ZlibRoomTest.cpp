// What zlib is given and what becomes of its refusals. zlib's two functions are replaced by our own here: they note the
// room that they are given and do what the test wants.
#include "backup/BackUpFixture.h"

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

uLongf roomGiven = 0;
uLong inputGiven = 0;
int refusal = Z_OK;
bool fillTheRoom = false;

} // namespace

extern "C" int compress(Bytef* out, uLongf* outLength, const Bytef* in, uLong inLength)
{
    roomGiven = *outLength;
    inputGiven = inLength;
    if (refusal != Z_OK) {
        *outLength = 3; // must not be believed
        return refusal;
    }
    if (fillTheRoom) {
        std::fill(out, out + *outLength, Bytef{'z'});
        return Z_OK;
    }
    return compress2(out, outLength, in, inLength, Z_DEFAULT_COMPRESSION);
}

extern "C" int uncompress(Bytef* out, uLongf* outLength, const Bytef* in, uLong inLength)
{
    roomGiven = *outLength;
    inputGiven = inLength;
    return uncompress2(out, outLength, in, &inLength);
}

namespace {

class ZlibRoomTest : public BackUpTest
{
protected:
    ZlibRoomTest()
    {
        refusal = Z_OK;
        fillTheRoom = false;
    }

    clsFileData& loaded(qsizetype size)
    {
        writeFile(files.path(u"shop.xml"_s), noise(size, 1));
        packer.Clear();
        EXPECT_EQ(packer.AddFile(u"shop.xml"_s), AddFileResult::Added);
        return packer.Item(1);
    }
};

// Sizes and the room for them: S * 0.01 + S + 12, halves to the even number.
const std::pair<int, uLongf> rooms[] = {
    {1, 13},      {49, 61},     {50, 62},        {51, 64},         {100, 113},       {149, 162},
    {150, 164},   {250, 264},   {350, 366},      {450, 466},       {1000, 1022},     {1050, 1072},
    {1150, 1174}, {1234, 1258}, {99950, 100962}, {100050, 101062}, {123456, 124703}, {5000000, 5050012},
};

} // namespace

TEST_F(ZlibRoomTest, DeflatingIsGivenTheRoomOfTheRule)
{
    for (const auto& [size, room] : rooms) {
        ASSERT_TRUE(loaded(size).CompressData());
        EXPECT_EQ(roomGiven, room) << size;
        EXPECT_EQ(inputGiven, static_cast<uLong>(size));
    }
}

TEST_F(ZlibRoomTest, InflatingIsGivenTheRoomOfTheRule)
{
    for (const auto& [size, room] : rooms) {
        clsFileData& entry = loaded(size);
        ASSERT_TRUE(entry.CompressData());
        const auto deflatedSize = static_cast<uLong>(entry.CompressedSize());
        roomGiven = 0;
        entry.setCompressed(false);
        EXPECT_EQ(roomGiven, room) << size;
        EXPECT_EQ(inputGiven, deflatedSize);
        EXPECT_FALSE(entry.Compressed());
    }
}

TEST_F(ZlibRoomTest, TheWholeRoomMayBeUsed)
{
    fillTheRoom = true;
    clsFileData& entry = loaded(50);
    EXPECT_TRUE(entry.CompressData());
    EXPECT_EQ(entry.CompressedSize(), 62);
}

TEST_F(ZlibRoomTest, WhatDoesNotFitStaysPlainWithErrorMinus5)
{
    refusal = Z_BUF_ERROR;
    clsFileData& entry = loaded(1000);
    EXPECT_FALSE(entry.CompressData());
    EXPECT_EQ(entry.ErrorCode(), -5);
    EXPECT_FALSE(entry.Compressed());
    EXPECT_EQ(entry.CompressedSize(), 0);
    EXPECT_EQ(entry.Size(), 1000);
    EXPECT_EQ(entry.ToString().size(), 1000);
    refusal = Z_OK;
    EXPECT_TRUE(entry.CompressData());
    EXPECT_EQ(entry.ErrorCode(), 0);
}

TEST_F(ZlibRoomTest, WhatDoesNotFitIsStoredRawInAFileWhoseHeaderSaysDeflated)
{
    useReferenceShop();
    packer.setCompressed(true);
    EXPECT_EQ(packer.AddFile(u"shop.xml"_s), AddFileResult::Added);
    refusal = Z_BUF_ERROR;
    EXPECT_EQ(packer.AddFile(u"pictures\\cup.png"_s), AddFileResult::Added);
    refusal = Z_OK;
    EXPECT_EQ(packer.AddFile(u"templates\\main.html"_s), AddFileResult::Added);
    EXPECT_EQ(packer.Item(2).ErrorCode(), -5);
    ASSERT_TRUE(packer.WriteFile(files.path(u"out"_s)));
    EXPECT_EQ(fileBytes(files.path(u"out"_s)), referenceBytes(u"raw_entry_among_deflated"_s));
}
