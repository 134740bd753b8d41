#include "usage.h"

#include <ctype.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "failure.h"

static int AsksForHelp(const char* argument) {
  return strcmp(argument, "-h") == 0 || strcmp(argument, "--help") == 0;
}

/* The arguments may end where a bracket opens and at the end. */
static int Allows(const char* synopsis, int count) {
  int words = 0;
  for (const char* p = strchr(synopsis, ' '); *p != '\0'; ++p) {
    if (*p == '[' && words == count) return 1;
    words += isalpha((unsigned char)p[0]) && !isalpha((unsigned char)p[-1]);
  }
  return words == count;
}

void ReadUsage(int argc, char** argv, const char* synopsis, const char* purpose) {
  for (int i = 1; i < argc; ++i) {
    if (AsksForHelp(argv[i])) {
      printf("usage: %s\n\n%s\n", synopsis, purpose);
      exit(EXIT_SUCCESS);
    }
  }
  if (!Allows(synopsis, argc - 1)) Fail("usage: %s", synopsis);
}
