// Runs tests of windows on the offscreen platform; a Qt warning fails the test that caused it.
#include <QApplication>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

void FailOnWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    // What a screen that is not there cannot do: raise a menu, grab the keyboard.
    // And what the toolkit's own list of a combo box says of itself where there is no room for it,
    // and a view whose cell is to be edited while it waits whether a click becomes a double click.
    const bool isNoise = message.startsWith(QLatin1String("This plugin does not support")) ||
                         message.contains(QLatin1String("QComboBoxPrivateContainer")) ||
                         message == QLatin1String("edit: editing failed");
    if ((type == QtWarningMsg || type == QtCriticalMsg) && !isNoise) {
        ADD_FAILURE() << "Qt: " << message.toStdString();
    } else if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    qInstallMessageHandler(FailOnWarning);
    return RUN_ALL_TESTS();
}
