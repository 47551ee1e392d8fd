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
    {
#include "divroot/tables/cbrt_seed.inc"
    },
    {f64(0x3FE5555555555555), f64(0x3C85555555555555)},
    {f64(0x3FE1C71C71C71C72), f64(0x3FDF9ADD3C0CA458), f64(0x3FDCF8A021B64151), f64(0x3FDB0A2F0E65D690),
     f64(0x3FD9899E3843BC6C), f64(0x3FD8524D8AEB2D5A), f64(0x3FD74EDFA52160CC), f64(0x3FD671E0D7E740C4),
     f64(0x3FD5B259593D6946), f64(0x3FD50A0910B7ABE7), f64(0x3FD4746C5E79AE3D)},
    0x1p300,
    0x1p27 + 1,
    0x1p43 + 1,
    {{1.0, 0.0},
     {f64(0x3FF428A2F8000000), f64(0x3E38D728AE223DDB)},
     {f64(0x3FF965FEA0000000), f64(0x3E54F5B8F20AC166)}},
    0.0,
    {1.0, -1.0}};

constexpr rcbrt_rare_table _orvdInvCbrtHATab = {
    {
#include "divroot/tables/rcbrt_seed.inc"
    },
    0x1p47 + 1,
    0x1p37,
    0x1p90,
    0.0,
    1.0,
    f64(0x3FD5556000000000),
    f64(0xBEC555555556EEB1),
    {f64(0x3FCC71C71C71C7C6), f64(0x3FC61F9ADD3D926E), f64(0x3FC26FABB82A92C1), f64(0x3FBFF4C2CAD96DC0),
     f64(0x3FBC67D1021ABD48), f64(0x3FB9B8DCFA1CBB4B), f64(0x3FB76E1B29541C7A)}};
ORVANE_TABLE_TWIN(__sinvcbrt_g__orvdInvCbrtHATab, _orvdInvCbrtHATab)

} // namespace orvane
