// The forms on 512-bit registers, in an object of their own.
#define FORMS_512
#include "names.S"
