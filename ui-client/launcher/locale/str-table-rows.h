// The rows of the string table as the build generates them from strings.tsv:
// kStrTableRows[id][0] is the key, kStrTableRows[id][1] the English text.
#ifndef NIMBULO_STR_TABLE_ROWS_H
#define NIMBULO_STR_TABLE_ROWS_H

extern const char* const kStrTableRows[652][2];

#endif
