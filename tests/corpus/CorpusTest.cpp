// Runs one fuzz target over its seeds. A broken promise ends the program, so the seed is named first.
#include "FuzzTarget.h"
#include "support/TestSupport.h"

#include <QDir>

using namespace Qt::StringLiterals;

TEST(Corpus, EverySeedKeepsThePromisesOfItsTarget)
{
    const QDir corpus(QStringLiteral(TARNWICK_CORPUS));
    const QStringList seeds = corpus.entryList(QDir::Files, QDir::Name);
    ASSERT_GE(seeds.size(), 10) << corpus.path().toStdString();
    for (const QString& seed : seeds) {
        SCOPED_TRACE(seed.toStdString());
        std::printf("%s\n", qPrintable(seed));
        std::fflush(stdout);
        const QByteArray bytes = fileBytes(corpus.filePath(seed));
        EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                         static_cast<std::size_t>(bytes.size())),
                  0);
    }
}
