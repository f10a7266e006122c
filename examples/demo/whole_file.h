// Whether the end of a picture file is there.
#ifndef GK_EXAMPLES_DEMO_WHOLE_FILE_H
#define GK_EXAMPLES_DEMO_WHOLE_FILE_H

#include <vector>

// True for a PNG file that is cut off or has a damaged chunk, and for a JPEG file that is cut off. Decoders
// make something up for what is missing, which must not be measured, or complain on their own; so this is asked
// first.
bool isDamaged(const std::vector<unsigned char>& bytes);

#endif
