#include "divroot/root_tables.h"

namespace orvane {

constexpr double __dinvsqrt_g__orvdInvSqrtHATab[65] = {
#include "divroot/tables/rsqrt_seed.inc"
};
ORVANE_TABLE_TWIN(_orvsInvSqrtTab, __dinvsqrt_g__orvdInvSqrtHATab)

constexpr double _orvdSqrtHATab[512] = {
#include "divroot/tables/rsqrt_seed_256.inc"
};
ORVANE_TABLE_TWIN(__dhypot_g__orvdHypotHATab, _orvdSqrtHATab)
ORVANE_TABLE_TWIN(_orvsHypotHATab, _orvdSqrtHATab)

constexpr scbrt_rare_table __scbrt_g_vscbrt_ha_cout_data = {cbrtf_neg_rcp, cbrtf_pairs};

constexpr dcbrt_rare_table __dcbrt_g__orvdCbrtTab = {
    .cbrt_seed =
        {
#include "divroot/tables/cbrt_seed.inc"
        },
    // Fit on -2^-5 <= e <= 2^-6.1: 1 + e*(horner_up(1, two_thirds) + e*horner_up(e, k)) = 1/cbrt(1 - e)^2
    // to 2^-64.7 relative
    .two_thirds = {f64(0x3FE5555555555555), f64(0x3C85555555555555)},
    .k = {f64(0x3FE1C71C71C71C72), f64(0x3FDF9ADD3C0CA458), f64(0x3FDCF8A021B64151), f64(0x3FDB0A2F0E65D690),
          f64(0x3FD9899E3843BC6C), f64(0x3FD8524D8AEB2D5A), f64(0x3FD74EDFA52160CC), f64(0x3FD671E0D7E740C4),
          f64(0x3FD5B259593D6946), f64(0x3FD50A0910B7ABE7), f64(0x3FD4746C5E79AE3D)},
    .scale_up = 0x1p300,
    .splitter = 0x1p27 + 1,
    .seed_splitter = 0x1p43 + 1,
    .two_roots = {{1.0, 0.0},
                  {f64(0x3FF428A2F8000000), f64(0x3E38D728AE223DDB)},
                  {f64(0x3FF965FEA0000000), f64(0x3E54F5B8F20AC166)}},
    .zero = 0.0,
    .sign = {1.0, -1.0}};

constexpr rcbrt_rare_table _orvdInvCbrtHATab = {
    .rcbrt_seed =
        {
#include "divroot/tables/rcbrt_seed.inc"
        },
    .index_shifter = 0x1p47 + 1,
    .splitter = 0x1p37,
    .scale_up = 0x1p90,
    .zero = 0.0,
    .one = 1.0,
    // Fit on |e| <= 2^-5.4: 1 + e*(third_hi + third_lo + e*horner_up(e, j)) = 1/cbrt(1 - e) to 2^-56.0 relative
    .third_hi = f64(0x3FD5556000000000),
    .third_lo = f64(0xBEC555555556EEB1),
    .j = {f64(0x3FCC71C71C71C7C6), f64(0x3FC61F9ADD3D926E), f64(0x3FC26FABB82A92C1), f64(0x3FBFF4C2CAD96DC0),
          f64(0x3FBC67D1021ABD48), f64(0x3FB9B8DCFA1CBB4B), f64(0x3FB76E1B29541C7A)}};
ORVANE_TABLE_TWIN(__sinvcbrt_g__orvdInvCbrtHATab, _orvdInvCbrtHATab)

} // namespace orvane
