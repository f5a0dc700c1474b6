// Shop files and import files that are small and ask for much: what nobody writes and a stranger may send. Each is made
// for a size, so that a test holds its content and a benchmark its growth.
#pragma once

#include <QByteArray>

#include <vector>

struct HostileInput
{
    const char* name;
    QByteArray (*make)(int size);
    // A size that took a minute, or a gigabyte, when rows were searched one by one and tables filled for every product.
    int size;
    bool isImport = false; // else it is a shop file
    bool isSquare = false; // asks for a text of N x N characters, up to a limit
};

const std::vector<HostileInput>& hostileInputs();
