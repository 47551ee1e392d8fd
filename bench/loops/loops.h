// The functions whose loops are measured: those of tests/vecabi/functions.def that have no pointers.
#pragma once
#define WITHOUT_POINTERS
