// True values of what an export computes, from MPFR, and the error of a result in units in the last place.
#pragma once

#include "signature.h"

#include <mpfr.h>

namespace orvane {

class truth {
public:
    truth();
    ~truth();
    truth(const truth&) = delete;

    // The true results of a row for one lane's argument words: value(0), and value(1) for an out-lane or a second
    // result. False if no true value is known. Arguments are exact numbers; a domain error gives NaN.
    bool operator()(const kernel_row& row, const uint64_t* arguments);
    mpfr_srcptr value(int j) const { return v[j]; }

    // |result - value(j)| in ulps of the lane type at the true value: the spacing of the type's numbers there, of its
    // subnormals below the normal range. 0 where both are NaN or both the same infinity, or the true value rounds to
    // an infinity that is the result; infinite where only one of them is.
    double error(int j, lane_type t, uint64_t result);

private:
    mpfr_t v[2], x, y, z;
};

} // namespace orvane
