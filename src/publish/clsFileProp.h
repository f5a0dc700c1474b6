// One file that the hosted shop already has: one line of its list. The list is keyed by the bare file name; keys are
// compared without regard to case.
#pragma once

#include "base/KeyedCollection.h"

#include <QString>

struct clsFileProp
{
    QString fileName;   // bare
    qint32 size = 0;    // bytes, as the server has them
    QString thirdValue; // the rest of the line; kept, never used
};

using ServerFileList = KeyedCollection<clsFileProp>;
