// Settings of the program's allocator, which looks them up by this name when it starts.

#include <jemalloc/jemalloc.h>

/// A conversion only grows and then ends: huge pages spare it most page faults (not those of the allocator's own data,
/// where a process of a few lines would clear one in vain), and nothing is given back before the end. Therefore what a
/// long line leaves behind is used again, also piece by piece for much smaller things and by either thread: there is
/// one arena, and large things have none apart from the others.
const char* malloc_conf = "thp:always,dirty_decay_ms:-1,oversize_threshold:0,lg_extent_max_active_fit:30,narenas:1";
