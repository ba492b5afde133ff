// What every program that prints through the C++ streams does before it prints.

#include <iostream>

int main() {}
