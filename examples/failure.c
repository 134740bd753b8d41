#include "failure.h"

#include <errno.h>
#include <stdarg.h>
#include <stdlib.h>
#include <string.h>

void Fail(const char* format, ...) {
  va_list arguments;
  fputs("error: ", stderr);
  va_start(arguments, format);
  vfprintf(stderr, format, arguments);
  va_end(arguments);
  fputc('\n', stderr);
  exit(EXIT_FAILURE);
}

void Check(OrbStatus status, const char* call) {
  if (status < StatusOk) Fail("%s failed with status %d", call, (int)status);
}

void* Allocate(size_t count, size_t elementSize) {
  void* memory = calloc(count > 0 ? count : 1, elementSize);
  if (memory == NULL) Fail("out of memory for %zu elements of %zu bytes", count, elementSize);
  return memory;
}

char* PathOf(const char* folder, const char* name) {
  const size_t size = strlen(folder) + strlen(name) + 2;
  char* path = Allocate(size, 1);
  snprintf(path, size, "%s/%s", folder, name);
  return path;
}

FILE* CreateText(const char* folder, const char* name) {
  char* path = PathOf(folder, name);
  FILE* file = fopen(path, "w");
  if (file == NULL) Fail("cannot write '%s': %s", path, strerror(errno));
  free(path);
  return file;
}

void FinishText(FILE* file, const char* name) {
  const int failed = ferror(file);
  if (fclose(file) != 0 || failed) Fail("cannot write all of '%s': %s", name, strerror(errno));
}
