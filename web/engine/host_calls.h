// What the engine asks of the page's worker, and the marks of both directions.
#pragma once

#include <cstdint>

/// A function that the worker calls.
#define STARFOLDS_EXPORT(name) __attribute__((export_name(#name), used))
/// A function of the worker.
#define STARFOLDS_IMPORT(name) __attribute__((import_module("page"), import_name(#name)))

extern "C" {

/// Returns the time in milliseconds when the run may go on: after so many, or with 0 when the
/// screen can show the next frame. The only call that unwinds the stack.
STARFOLDS_IMPORT(wait) std::int32_t PageWait(std::int32_t milliseconds);

/// Shows a frame: `count` pairs of words, place and colour; or the whole canvas, of 0xBBGGRR by
/// rows, if `isWhole`; the words then are its pixels.
STARFOLDS_IMPORT(present)
void PagePresent(const std::uint32_t* words, std::uint32_t count, std::int32_t isWhole);

}  // extern "C"
