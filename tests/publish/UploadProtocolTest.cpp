#include "publish/UploadProtocol.h"

#include "publish/PublishSupport.h"
#include "publish/VendorAddresses.h"

#include <algorithm>
#include <ctime>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const ApplicationFolder folder(u"/home/anna/Tarnwick"_s);

TEST(UploadProtocol, TheBaseUrlGetsSchemeAndSlashWhereTheyAreMissing)
{
    struct Row
    {
        QString typed;
        QString normalized;
    };
    const std::vector<Row> rows{
        {u"shop.example/x"_s, u"http://shop.example/x/"_s},
        {u"http://shop.example/x"_s, u"http://shop.example/x/"_s},
        {u"http://shop.example/"_s, u"http://shop.example/"_s},
        {u"shop.example/"_s, u"http://shop.example/"_s},
        {u"HTTP://shop.example/"_s, u"http://HTTP://shop.example/"_s},
        {u"https://shop.example"_s, u"http://https://shop.example/"_s},
        {u"http:/shop.example"_s, u"http://http:/shop.example/"_s},
        {u" http://shop.example"_s, u"http:// http://shop.example/"_s},
        {u"http://"_s, u"http://"_s},
        {u""_s, u"http://"_s},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(normalizedBaseUrl(row.typed), row.normalized) << row.typed.toStdString();
    }
}

TEST(UploadProtocol, TheHeaderSeparatesItsBoundaryByAComma)
{
    EXPECT_EQ(requestContentType(), "multipart/form-data, boundary=AaB03x");
}

TEST(UploadProtocol, TheListRequestIsTheHeadAloneWithAnOpenBoundary)
{
    const QByteArray head = requestHead(u"anna"_s, u"s3cret"_s, u"1.2.0"_s);
    EXPECT_EQ(head, expectedRequest(u"00-list.bin"_s, folder));
    EXPECT_TRUE(head.endsWith("\r\n--AaB03x\r\n"));
}

TEST(UploadProtocol, AFilesBytesComeThroughAsTheyAre)
{
    const QByteArray head = requestHead(u"anna"_s, u"s3cret"_s, u"1.2.0"_s);
    EXPECT_EQ(uploadBody(head, u"/home/anna/Tarnwick\\pictures\\blue.png"_s, "image/gif",
                         uploadData(u"shop/pictures/blue.png"_s)),
              expectedRequest(u"03-blue.png.bin"_s, folder));
}

TEST(UploadProtocol, AFileOfZeroBytesIsAnEmptyLine)
{
    const QByteArray head = requestHead(u"anna"_s, u"s3cret"_s, u"1.2.0"_s);
    const QByteArray body = uploadBody(head, u"/home/anna/Tarnwick\\pictures\\pot.gif"_s, "image/gif", {});
    EXPECT_EQ(body, expectedRequest(u"04-pot.gif.bin"_s, folder));
    EXPECT_TRUE(body.endsWith("Content-Type: image/gif\r\n\r\n\r\n--AaB03x--\r\n"));
}

TEST(UploadProtocol, ALetterIsOneByteWhereThatCanBe)
{
    const QByteArray head = requestHead(u"jürgen"_s, u"5€"_s, u"1.2.0"_s);
    EXPECT_EQ(uploadBody(head, u"größe.png"_s, "image/gif", "x"), expectedRequest(u"letters.bin"_s, folder));
}

TEST(UploadProtocol, ALetterIsOneByteEvenWhereTheBytesWouldReadAsUtf8)
{
    EXPECT_EQ(requestText(u"\u00C3\u00A9"_s), "\xC3\xA9");
}

TEST(UploadProtocol, NoLetterIsLostWhereOneByteCannotHoldIt)
{
    const QByteArray head = requestHead(u"анна"_s, u""_s, u"1.2.0"_s);
    EXPECT_EQ(uploadBody(head, u"чашка.png"_s, "image/gif", "x"), expectedRequest(u"wide-letters.bin"_s, folder));
}

struct AnswerRow
{
    const char* what;
    int status;
    QByteArray body;
    QString result;
    QString title; // of the box; empty for none
    QString text;
};

std::vector<AnswerRow> answerRows()
{
    const QString wrongLogin = u"Incorrect login or password! In case you forgot your password please visit:\r\n"_s +
                               VendorAddresses::passwordRecovery();
    const QString serverError = u"Server internal error"_s;
    return {
        {"a plain answer", 200, "1.2.0|", u"1.2.0|"_s, {}, {}},
        {"an empty answer", 200, "", u""_s, {}, {}},
        {"401 in the answer", 200, "401", u"error"_s, u"Error 0"_s, wrongLogin},
        {"text behind 401", 200, "401 Unauthorized", u"error"_s, u"Error 0"_s, wrongLogin},
        {"more digits behind 401", 200, "40123", u"error"_s, u"Error 0"_s, wrongLogin},
        {"401 not at the start", 200, " 401", u" 401"_s, {}, {}},
        {"two of its digits", 200, "40", u"40"_s, {}, {}},
        {"500 in the answer", 200, "500", u"error"_s, u"Error 0"_s, serverError},
        {"more digits behind 500", 200, "5000", u"error"_s, u"Error 0"_s, serverError},
        {"404 in the answer means nothing", 200, "404", u"404"_s, {}, {}},
        {"the word error", 200, "error", u"error"_s, {}, {}},
        {"status 401", 401, "who?", u"who?"_s, u"Error 401"_s, u"Login or password isn't correct"_s},
        {"status 404", 404, "where?", u"where?"_s, u"Error 404"_s, u"Document not found"_s},
        {"status 500", 500, "oops", u"oops"_s, u"Error 500"_s, serverError},
        {"status 401 with 401 in the answer", 401, "401", u"401"_s, u"Error 401"_s,
         u"Login or password isn't correct"_s},
        {"status 503", 503, "busy", u"busy"_s, u"Error 503"_s, u"Uploading is failed.\r\nbusyError #503\r\n"_s},
        {"status 302", 302, "", u""_s, u"Error 302"_s, u"Uploading is failed.\r\nError #302\r\n"_s},
        {"status 204", 204, "", u""_s, u"Error 204"_s, u"Uploading is failed.\r\nError #204\r\n"_s},
        {"status 503 with the word error", 503, "error", u"error"_s, u"Error 503"_s,
         u"Uploading is failed.\r\nerrorError #503\r\n"_s},
    };
}

TEST(UploadProtocol, AnAnswerIsItsTextOrTheWordError)
{
    for (const AnswerRow& row : answerRows()) {
        SCOPED_TRACE(row.what);
        RecordingPrompts prompts;
        if (!row.title.isEmpty()) {
            prompts.expectMessage(row.title, row.text, PromptIcon::Warning);
        }
        EXPECT_EQ(readAnswer(httpAnswer(row.status, row.body), prompts), row.result);
    }
}

TEST(UploadProtocol, ABoxShowsTheStartOfAnAnswerThatIsTooLongForIt)
{
    RecordingPrompts prompts;
    const QByteArray page(1000000, 'x');
    prompts.expectMessage(u"Error 503"_s, u"Uploading is failed.\r\n"_s + QString(4000, u'x') + u"Error #503\r\n"_s,
                          PromptIcon::Warning);
    EXPECT_EQ(readAnswer(httpAnswer(503, page), prompts).size(), 1000000);
}

TEST(UploadProtocol, EachLineOfAnAnswerIsReadInItsOwnEncoding)
{
    EXPECT_EQ(answerText("gr\xC3\xB6\xC3\x9F"
                         "e\r\ngr\xF6\xDF"
                         "e\r\nend"),
              u"größe\r\ngröße\r\nend"_s);
    EXPECT_EQ(answerText(""), u""_s);
    EXPECT_EQ(answerText("\r\n\n"), u"\r\n\n"_s);
    EXPECT_EQ(answerText("\xEF\xBB\xBF"
                         "1.2.0|"),
              u"1.2.0|"_s);
}

TEST(UploadProtocol, RunsOfLinesInOneEncodingReadAsTheLinesByThemselves)
{
    const QList<QByteArray> lines = {"\xC3\xB6|1|x\r\n",   "\xF6|1|x\n", "\n",   "\xEF\xBB\xBF|\n",
                                     "\xEF\xBB\xBF\xF6\n", "\xC3\n",     "\xB6", "plain\r\n"};
    for (qsizetype first = 0; first < lines.size(); ++first) {
        for (qsizetype second = 0; second < lines.size(); ++second) {
            for (qsizetype third = 0; third < lines.size(); ++third) {
                QByteArray body;
                QString expected;
                for (const qsizetype line : {first, second, third}) {
                    if (!body.isEmpty() && !body.endsWith('\n')) {
                        continue; // it would go on with an unfinished line
                    }
                    body += lines[line];
                    expected += answerText(lines[line]);
                }
                EXPECT_EQ(answerText(body), expected) << body.toPercentEncoding().toStdString();
            }
        }
    }
}

// The processor's time for reading an answer, in seconds; the best of three.
double secondsToRead(const QByteArray& body)
{
    double best = std::numeric_limits<double>::max();
    for (int turn = 0; turn < 3; ++turn) {
        const std::clock_t start = std::clock();
        EXPECT_EQ(answerText(body).size(), body.size());
        best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return best;
}

TEST(UploadProtocol, AnAnswerIsReadInATimeThatGrowsLikeItsLength)
{
    const qsizetype length = qsizetype{256} * 1024;
    for (const QByteArray& line : {QByteArray("\n"), QByteArray("\xF6\n"), QByteArray("\n\xF6\n")}) {
        const double once = secondsToRead(line.repeated(length / line.size()));
        const double fourTimes = secondsToRead(line.repeated(4 * length / line.size()));
        EXPECT_LT(fourTimes, 8 * once + 0.05) << line.toPercentEncoding().toStdString(); // a square would make 16 of it
    }
}

TEST(UploadProtocol, FindsTheBoundaryAtTheBeginningOfALineOnly)
{
    const struct
    {
        QByteArray bytes;
        bool holds;
    } rows[] = {
        {"--AaB03x", true},
        {"--AaB03x--\r\n", true},
        {"--AaB03xyz", true},
        {"a\r\n--AaB03x\r\nb", true},
        {"a\n--AaB03x", true},
        {QByteArray("\0\n--AaB03x", 10), true},
        {"x--AaB03x\n--AaB03x", true},
        {"----AaB03x\n--AaB03x", true},
        {"", false},
        {"AaB03x", false},
        {" --AaB03x", false},
        {"a\r--AaB03x", false},
        {"---AaB03x", false},
        {"--aab03x", false},
        {"a --AaB03x\r\nb", false},
        {"\n--AaB03", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(holdsBoundary(row.bytes), row.holds) << row.bytes.toPercentEncoding().toStdString();
    }
}

} // namespace
