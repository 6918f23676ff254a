// The main of the test programs that draw or drive windows: the tests need a
// Qt application object before the first font or widget is made. They run on
// the offscreen platform unless the caller chose another, so no display is
// needed.
#include <gtest/gtest.h>

#ifdef KELVARO_TEST_WIDGETS
#include <QApplication>
using TestApplication = QApplication;
#else
#include <QGuiApplication>
using TestApplication = QGuiApplication;
#endif

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  TestApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
