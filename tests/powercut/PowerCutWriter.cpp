// powercut_writer save FILE BYTES     writes a file as a save does
// powercut_writer backup FOLDER NAME  makes a backup of the shop in that folder
// Ends when the program would say that it is done.
#include "backup/clsPacker.h"
#include "base/FileBytes.h"
#include "bench/NoPrompts.h"

#include <QStringList>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    if (arguments.size() != 3) {
        return 2;
    }
    try {
        if (arguments[0] == "save"_L1) {
            writeFileBytes(arguments[1], QByteArray(arguments[2].toLongLong(), 'n'));
            return 0;
        }
        NoPrompts prompts;
        const SystemClock clock;
        clsPacker packer(ApplicationFolder(arguments[1]), prompts, clock);
        return packer.BackUp(arguments[2]) ? 0 : 1;
    } catch (const RuntimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
