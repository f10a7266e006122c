#include "tests/bits/operations.h"

namespace bits {

const Operations& operations() {
    static const Operations list = [] {
        Operations all;
        for (const auto& some :
             {valueOperations(), planeOperations(), momentOperations(), contourOperations(), regionOperations(),
              setOperations(), edgeletOperations(), archiveOperations(), drawingOperations()}) {
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return list;
}

} // namespace bits
