#include <QtQuickTest>

QUICK_TEST_MAIN(qtcomponents)
