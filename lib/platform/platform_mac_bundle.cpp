// Bundles on macOS: Launch Services keeps a record of every bundle it has
// seen, and opening a bundle through the desktop's open service starts its
// application, or brings it forward when it already runs.
#include "platform/platform.h"

#include <QDesktopServices>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace {

const char* const kDefaultTool = "/System/Library/Frameworks/CoreServices.framework/Frameworks/"
                                 "LaunchServices.framework/Support/lsregister";

ustring& RegistrationTool()
{
    static ustring tool(kDefaultTool);
    return tool;
}

}  // namespace

void PlatformSetRegistrationTool(const ustring& tool)
{
    RegistrationTool() = tool.empty() ? ustring(kDefaultTool) : tool;
}

ustring PlatformRegistrationTool()
{
    return RegistrationTool();
}

int PlatformForgetBundle(const ustring& bundle)
{
    const QString tool = QString::fromUtf8(RegistrationTool().c_str_utf8());
    return QProcess::execute(tool, QStringList() << "-u" << QString::fromUtf8(bundle.c_str_utf8()));
}

bool PlatformOpenBundle(const ustring& bundle)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromUtf8(bundle.c_str_utf8())));
}
