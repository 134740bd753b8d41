/* How the examples fail: one line on standard error and a non-zero exit. */
#ifndef EXAMPLES_FAILURE_H
#define EXAMPLES_FAILURE_H

#include <orbs90lgc.h>
#include <stddef.h>
#include <stdio.h>

/* Prints the message and ends the program. */
void Fail(const char* format, ...) __attribute__((noreturn, format(printf, 1, 2)));

/* Ends the program unless the library's call succeeded. */
void Check(OrbStatus status, const char* call);

/* Memory for count elements, at least one; ends the program when there is none. */
void* Allocate(size_t count, size_t elementSize);

/* A text file in the folder, open for writing. Close it with FinishText(), which sees a full disk. */
FILE* CreateText(const char* folder, const char* name);
void FinishText(FILE* file, const char* name);

/* folder/name, in memory that the caller frees. */
char* PathOf(const char* folder, const char* name);

#endif
