// Number texts that stand for whole numbers of a limited size: ids, picture sizes, limits.
#pragma once

#include <QString>

// A locale's number text as a whole number; a fraction is rounded half to even. ErrorNumber::TypeMismatch when the
// text is no number, Overflow when it is out of range.
qint16 int16FromText(const QString& text);
qint32 int32FromText(const QString& text);
