// The functions whose loops are measured: those of tests/vecabi/functions.def that are in math.h and have no
// pointers.
#pragma once
#define WITHOUT_POINTERS
#define C_LIBRARY_ALONE
