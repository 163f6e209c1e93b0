// Settings of the program's allocator, which looks them up by this name when it starts.

#include <jemalloc/jemalloc.h>

/// A conversion only grows and then ends: huge pages spare it most page faults, and nothing is given back before the
/// end.
const char* malloc_conf = "thp:always,metadata_thp:always,dirty_decay_ms:-1";
