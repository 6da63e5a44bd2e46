// quill-driver: the program without a display, driven by lines on the standard input.
#include "driver/Session.h"

int main(int argc, char** argv) {
  return quill::driver::RunSession(quill::driver::AllOperations(), argc, argv);
}
