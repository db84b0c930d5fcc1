// What all parts need of the application object.
#include "platform/Program.h"

namespace kestview {
namespace {

Program* theProgram = nullptr;

}  // namespace

Program::Program() { theProgram = this; }

Program::~Program() { theProgram = nullptr; }

Program* RunningProgram() { return theProgram; }

}  // namespace kestview
