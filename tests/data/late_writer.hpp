#pragma once

// What a program writes at its very end, by a stream that keeps it back until it is flushed. In a
// library of its own, linked behind the tables, so that its part of the streams is made after them
// and gone before them.

void keepOutputBack();
void writeText(const char* text);
