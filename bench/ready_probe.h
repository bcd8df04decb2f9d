#pragma once

/// Prints the milliseconds since the moment in the environment variable BENCH_START (seconds since the
/// epoch, with a fraction) and the memory held now, as proportional set size in kB; then ends the process.
[[noreturn]] void reportReady();
