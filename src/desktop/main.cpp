#include <QCommandLineParser>

#include "desktop/application.h"
#include "desktop/program.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"

using namespace quillmark;
using namespace quillmark::desktop;

namespace {

/// "/upg" has the form that the upgrade tool's own shortcut gives it.
LaunchOrder OrderOf(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(Application::tr("Makes the documents of a real-estate closing."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption folder(QStringLiteral("folder"), Application::tr("The program folder."),
                                    QStringLiteral("DIR"));
    parser.addOption(folder);
    parser.addPositionalArgument(QStringLiteral("job"), Application::tr("A job to open, or its file."),
                                 QStringLiteral("[JOB]"));
    parser.process(arguments);
    LaunchOrder order;
    order.folder = PathOf(Utf8(parser.value(folder)));
    for (const QString& word : parser.positionalArguments()) {
        if (word.compare(QLatin1String("/upg"), Qt::CaseInsensitive) == 0)
            order.upgrade = true;
        else
            order.job = Utf8(word);
    }
    return order;
}

}  // namespace

int main(int count, char** arguments) {
    Application application(count, arguments);
    try {
        Program program(OrderOf(Application::arguments()));
        return program.Start() ? Application::exec() : 0;
    } catch (const std::exception& fault) {
        QtDialogs().Tell("Quillmark", fault.what(), DialogIcon::Stop);
        return 1;
    }
}
