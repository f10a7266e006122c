// The pictures, a list for each group of operations.
#ifndef GK_EXAMPLES_PICTURES_GROUPS_H
#define GK_EXAMPLES_PICTURES_GROUPS_H

#include "figure.h"

struct Picture {
    const char* name; // of the file, without ".svg"
    void (*draw)(Figure& figure);
};

using Pictures = std::vector<Picture>;

Pictures measures();
Pictures proximity();
Pictures crossings();
Pictures repairs();

#endif
