/* How the examples are called. */
#ifndef EXAMPLES_USAGE_H
#define EXAMPLES_USAGE_H

/*
 * Lets main() go on only if it was called as the synopsis says: the program's name and its arguments, in
 * brackets what may be left out, as in "tone FREQUENCY [FOLDER [LOW HIGH]]". A request for help (-h or
 * --help) prints synopsis and purpose and ends the program with success; another number of arguments ends it
 * with failure.
 */
void ReadUsage(int argc, char** argv, const char* synopsis, const char* purpose);

#endif
