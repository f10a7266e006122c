// Inside or not by one pass over the segments, without a ray's direction.
#ifndef GK_CNTR_SEARCH_INSIDE_SCAN_H
#define GK_CNTR_SEARCH_INSIDE_SCAN_H

#include "cntr/search/inside_certificate.h"
#include "cntr/search/segments.h"

// Of a closed outline and a point that the certificate allows rays from; unknown where it does not hold
// otherwise.
gk_Inside gk_ScanInside(const gk_Segments& outline, const gk_InsideCertificate& certificate,
                        const gkVector<2>& point);

#endif
