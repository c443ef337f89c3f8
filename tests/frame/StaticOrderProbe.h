// The parts of the probe that shows the order in which the library's static data is built and
// released. The data is compiled into the probe between two marks; in between, the registration of
// each destructor is caught on its way to the C runtime.

#ifndef TESTS_FRAME_STATICORDERPROBE_H
#define TESTS_FRAME_STATICORDERPROBE_H

namespace static_order {

// Rows of the order: 14, of which the last is an empty pointer, whose memory tells nothing.
const int kRows = 14;

// Between the two marks.
extern bool recording;

// What the memory of rows 1 to 13 looks like: "1" built, "0" not yet, "?" partly.
void WriteState(char (&state)[kRows]);

// The address of a row, counted from 1.
const void* AddressOfRow(int row);

// A destructor is being registered; returns its number, counted from 1. `object` is what it will
// be called with, null when the runtime does not say.
int OnRegistration(const void* object);

// That destructor is about to run.
void OnDestruction(int number);

}  // namespace static_order

#endif
