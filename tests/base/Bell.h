// Rings, and counts or fails when it is told to. For the tests of guarded connections.
#pragma once

#include "base/RuntimeError.h"

#include <QObject>

class Bell : public QObject
{
    Q_OBJECT

public:
    void raise(int number) { throw RuntimeError(static_cast<ErrorNumber>(number)); }
    void count() { ++rings; }

    int rings = 0;

Q_SIGNALS:
    void rung(int number);
};
