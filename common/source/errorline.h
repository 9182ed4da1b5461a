#pragma once

/**
 * Prints the diagnostic line "### ERROR: FILE:...\t Func:...\tLINE" to standard output and flushes it.
 * Call it through ERROR_LINE(), which fills in the place.
 */
void printErrorLine(const char* file, const char* function, int line);

#define ERROR_LINE() printErrorLine(__FILE__, __func__, __LINE__)
