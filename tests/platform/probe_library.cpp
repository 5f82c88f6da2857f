#if defined(_WIN32)
#define PROBE_EXPORT __declspec(dllexport)
#else
#define PROBE_EXPORT __attribute__((visibility("default")))
#endif

extern "C" PROBE_EXPORT int PlatformProbeAnswer() { return 42; }
