#include "App/LanternixApp.h"

int main(int argc, char **argv) {
  return lanternix::LanternixApp::run(argc, argv);
}
