// Does one of the fixed works, so that its instructions can be counted; see cmake/checks/instructions.sh.
#include "tests/instructions/measured.h"
#include "tests/instructions/workload.h"

#include <cstdio>
#include <cstring>

namespace {

using instructions::Workload;
using instructions::Workloads;

const char* const kUsage = R"(usage: instructions --list | --compiler | WORKLOAD
)";

Workloads workloads() {
    Workloads all;
    for (const Workloads& some :
         {instructions::proximityWorkloads(), instructions::crossingWorkloads(),
          instructions::measureWorkloads(), instructions::regionWorkloads(), instructions::setWorkloads()}) {
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

int list() {
    for (const Workload& workload : workloads()) std::printf("%s\n", workload.name.c_str());
    return 0;
}

int run(const std::string& name) {
    for (const Workload& workload : workloads()) {
        if (workload.name != name) continue;
        gk_measured(workload.prepare());
        return 0;
    }
    std::fprintf(stderr, "instructions: no workload is called %s\n", name.c_str());
    return 2;
}

} // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    if (std::strcmp(words[1], "--list") == 0) return list();
    if (std::strcmp(words[1], "--compiler") == 0) return std::printf("%s\n", GK_COMPILER) < 0 ? 1 : 0;
    return run(words[1]);
}
