// Runs the tests as a Qt console program. A value too many for its template fails the running test.
#include <gtest/gtest.h>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace
{

QtMessageHandler printMessage = nullptr;

void CheckMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.contains(QLatin1String("Argument missing")))
    {
        ADD_FAILURE() << message.toStdString();
    }
    printMessage(type, context, message);
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    printMessage = qInstallMessageHandler(CheckMessage);
    return RUN_ALL_TESTS();
}
