#include "tests/degenerate/table.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

std::string trimmed(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '`'), text.end());
    const std::size_t begin = text.find_first_not_of(' ');
    if (begin == std::string::npos) return "";
    return text.substr(begin, text.find_last_not_of(" \r") - begin + 1);
}

// "| a | b |" as a and b; nothing for a line of another kind.
std::vector<std::string> row(const std::string& line) {
    std::vector<std::string> cells;
    if (line.empty() || line.front() != '|') return cells;
    std::istringstream in(line.substr(1));
    for (std::string cell; std::getline(in, cell, '|');) cells.push_back(trimmed(cell));
    return cells;
}

bool isNumber(const std::string& text, double& value) {
    char* end = nullptr;
    value = std::strtod(text.c_str(), &end);
    return !text.empty() && *end == '\0';
}

} // namespace

std::vector<Cell> cellsOf(const std::string& page) {
    std::ifstream in(page);
    if (!in) throw std::runtime_error("no page " + page);
    std::vector<Cell> cells;
    std::vector<std::string> head;
    std::string section;
    for (std::string line; std::getline(in, line);) {
        const std::vector<std::string> texts = row(line);
        if (line.rfind("#", 0) == 0) section = trimmed(line.substr(line.find(' ')));
        if (texts.empty()) head.clear();
        if (texts.empty() || texts[0].rfind("---", 0) == 0) continue;
        if (head.empty()) {
            head = texts;
        } else if (head[0] == "operation") {
            if (texts.size() != head.size()) throw std::runtime_error("a short row: " + line);
            for (std::size_t i = 1; i < texts.size(); ++i)
                cells.push_back({section, texts[0], head[i], texts[i]});
        }
    }
    return cells;
}

bool isPromised(const std::string& answer, const std::string& cell) {
    if (cell == "lost") return true;
    const std::string between = " \u00b1 ";
    const std::size_t split = cell.find(between);
    if (split == std::string::npos) return answer == cell;
    double value = 0.0;
    double middle = 0.0;
    double bound = 0.0;
    return isNumber(answer, value) && isNumber(cell.substr(0, split), middle) &&
           isNumber(cell.substr(split + between.size()), bound) && std::fabs(value - middle) <= bound;
}
