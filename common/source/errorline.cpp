#include "errorline.h"

#include "standardstreams.h"

#include <unistd.h>

void printErrorLine(const char* file, const char* function, int line)
{
    standardstreams::write(STDOUT_FILENO,
        QByteArrayLiteral("### ERROR: FILE:") + file + "\t Func:" + function + '\t' + QByteArray::number(line)
            + '\n');
}
