#include "tests/kit/editors/EditorBench.h"
#include <QtTest>
class TestTreePanel : public QObject { Q_OBJECT private slots: void a(){} };
QTEST_MAIN(TestTreePanel)
#include "TestTreePanel.moc"
