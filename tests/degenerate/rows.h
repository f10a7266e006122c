// How each row of docs/degenerate.md is asked.
#ifndef GK_TESTS_DEGENERATE_ROWS_H
#define GK_TESTS_DEGENERATE_ROWS_H

#include "tests/degenerate/kinds.h"

#include <map>
#include <string>

// By the row's text; the answer is written as the page writes it, and what is thrown passes through.
using Rows = std::map<std::string, std::string (*)(const Kind&)>;

Rows contourRows();
Rows regionRows();
Rows holeRows();
Rows setRows();
Rows edgeletRows();
Rows functionRows();

#endif
