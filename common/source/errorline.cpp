#include "errorline.h"

#include <cstdio>

void printErrorLine(const char* file, const char* function, int line)
{
    std::printf("### ERROR: FILE:%s\t Func:%s\t%d\n", file, function, line);
    std::fflush(stdout);
}
