// The tables of docs/degenerate.md.
#ifndef GK_TESTS_DEGENERATE_TABLE_H
#define GK_TESTS_DEGENERATE_TABLE_H

#include <string>
#include <vector>

struct Cell {
    std::string section;   // the heading above the table
    std::string operation; // without back quotes, like the rest
    std::string column;
    std::string text;
};

// Every cell of the tables whose first column is called "operation".
std::vector<Cell> cellsOf(const std::string& page);

// True when the answer, which no error took the place of, is what the cell promises.
bool isPromised(const std::string& answer, const std::string& cell);

#endif
