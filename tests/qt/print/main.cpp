// The desktop tests' offscreen main.
#include "../main.cpp"
