// Inside or not from the cell that a point lies in.
#ifndef GK_CNTR_SEARCH_INSIDE_CELLS_H
#define GK_CNTR_SEARCH_INSIDE_CELLS_H

#include "cntr/search/inside_certificate.h"
#include "cntr/search/segment_cells.h"

// Of a closed outline and a point that the certificate allows rays from: the parity of the cell's middle,
// changed by the crossings on a way from there to the point, as long as the certificate's distances are kept.
gk_Inside gk_InsideByCells(const gk_Segments& outline, const gk_SegmentCells& cells,
                           const gk_InsideCertificate& certificate, const gkVector<2>& point);

#endif
