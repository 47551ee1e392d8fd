#include "pow/pow_tables.h"

namespace orvane {

constexpr power_table<double, 33, 33, 129, 5> __dpow_g_CoutTab = {
    .rcp1 =
        {
#include "pow/tables/rcp1.inc"
        },
    .log1 =
        {
#include "pow/tables/log1.inc"
        },
    .rcp2 =
        {
#include "pow/tables/rcp2.inc"
        },
    .log2nd =
        {
#include "pow/tables/log2nd.inc"
        },
    .rcp3 =
        {
#include "pow/tables/rcp3.inc"
        },
    .log3 =
        {
#include "pow/tables/log3.inc"
        },
    .exp128 =
        {
#include "exp/tables/exp2_128_pairs.inc"
        },
    // Fit on |z| <= 2^-15.4: z + z*horner_up(z, lg_A) = log2(1 + z/c) to 2^-66.3 relative
    .lg_A = {f64(0x3E79C3A6966457E8), f64(0xBFD62E4346694107), f64(0x3FC47FD462B6DEE1), f64(0xBFB550472A9012D8)},
    // Fit on |r| <= 1/256: 1 + r*horner_up(r, ex_B) = exp2(r) to 2^-60.4 relative
    .ex_B = {f64(0x3FE62E42FEFA39EF), f64(0x3FCEBFBDFF82C58F), f64(0x3FAC6B08D704A0C0), f64(0x3F83B2AB6FBA4E77),
             f64(0x3F55D87FE78A6731)},
    .huge_tiny = {0x1p1023, 0x1p-1022},
    .zero = 0.0,
    .sign_tab = {1.0, -1.0},
    .shifter = 0x1.8p45,
    .c = f64(0x3FF7154740000000),
    .split = 0x1p27 + 1,
    .up = 0x1p200,
    .down = 0x1p-200,
};
constexpr power_table<float, 9, 9, 17, 3> __spow_g_CoutTab = {
    .rcp1 =
        {
#include "pow/tables/rcp1f.inc"
        },
    .log1 =
        {
#include "pow/tables/log1f.inc"
        },
    .rcp2 =
        {
#include "pow/tables/rcp2f.inc"
        },
    .log2nd =
        {
#include "pow/tables/log2ndf.inc"
        },
    .rcp3 =
        {
#include "pow/tables/rcp3f.inc"
        },
    .log3 =
        {
#include "pow/tables/log3f.inc"
        },
    .exp128 =
        {
#include "pow/tables/exp128f.inc"
        },
    // Fit on |z| <= 2^-8.0: z + z*horner_up(z, lg_A) = log2(1 + z/c) to 2^-34.4 relative
    .lg_A = {f32(0x3A6A6369), f32(0xBEB1C35D), f32(0x3E246F69), f32(0xBDAB1EA1)},
    // Fit on |r| <= 1/256: 1 + r*horner_up(r, ex_B) = exp2(r) to 2^-36.6 relative
    .ex_B = {f32(0x3F317218), f32(0x3E75FDF0), f32(0x3D635847)},
    .huge_tiny = {0x1p127f, 0x1p-126f},
    .zero = 0.0f,
    .sign_tab = {1.0f, -1.0f},
    .shifter = 0x1.8p16f,
    .c = f32(0x3FB88000),
    .split = 0x1p12f + 1,
    .up = 0x1p64f,
    .down = 0x1p-64f,
};
ORVANE_TABLE_TWIN(__dpowr_g_CoutTab, __dpow_g_CoutTab)
ORVANE_TABLE_TWIN(__dpown_g_CoutTab, __dpow_g_CoutTab)
ORVANE_TABLE_TWIN(__drootn_g_CoutTab, __dpow_g_CoutTab)
ORVANE_TABLE_TWIN(__spowr_g_CoutTab, __spow_g_CoutTab)
ORVANE_TABLE_TWIN(__spown_g_CoutTab, __spow_g_CoutTab)
ORVANE_TABLE_TWIN(__srootn_g_CoutTab, __spow_g_CoutTab)

} // namespace orvane
