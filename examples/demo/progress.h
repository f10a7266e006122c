// What is being done, for those who wait.
#ifndef GK_EXAMPLES_DEMO_PROGRESS_H
#define GK_EXAMPLES_DEMO_PROGRESS_H

#include <chrono>
#include <cstddef>
#include <string>

// Tells on the standard error stream: on a terminal in one line that is written over and over and cleared in
// the end, elsewhere in lines of their own, the first after some seconds and not often, so that short work says
// nothing.
class Progress {
public:
    Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    void tell(const std::string& what);
    void tell(const std::string& what, std::size_t done, std::size_t all);
    // Makes room for other output on the terminal.
    void clear();

private:
    bool isTerminal_;
    std::chrono::steady_clock::time_point last_;
};

#endif
