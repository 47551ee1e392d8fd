// A library of PoCL's name that says it is of another version.
#include <CL/cl_icd.h>
#include <string.h>

static cl_icd_dispatch calls;
static struct { cl_icd_dispatch* dispatch; } platform = {&calls};

static cl_int CL_API_CALL info(cl_platform_id p, cl_platform_info what, size_t size, void* value, size_t* needed) {
    const char* text = what == CL_PLATFORM_VERSION          ? "OpenCL 3.0 PoCL 4.0  Linux, LLVM 16.0.6"
                       : what == CL_PLATFORM_EXTENSIONS     ? "cl_khr_icd"
                       : what == CL_PLATFORM_ICD_SUFFIX_KHR ? "POCL"
                                                            : "other";
    (void)p;
    if (value && size <= strlen(text)) return CL_INVALID_VALUE;
    if (value) strcpy(value, text);
    if (needed) *needed = strlen(text) + 1;
    return CL_SUCCESS;
}
static cl_int CL_API_CALL ids(cl_uint n, cl_platform_id* all, cl_uint* count) {
    calls.clGetPlatformInfo = info;
    calls.clGetPlatformIDs = ids;
    if (n && all) *all = (cl_platform_id)&platform;
    if (count) *count = 1;
    return CL_SUCCESS;
}
void* CL_API_CALL clGetExtensionFunctionAddress(const char* name) {
    if (!strcmp(name, "clIcdGetPlatformIDsKHR")) return (void*)ids;
    return strcmp(name, "clGetPlatformInfo") ? 0 : (void*)info;
}
