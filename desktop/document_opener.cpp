// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/document_opener.h"

#include <QDesktopServices>
#include <QUrl>

namespace velmoriax::desktop {

bool QtDocumentOpener::open(const std::string& target) {
    const QUrl address(QString::fromStdString(target), QUrl::StrictMode);
    const bool isAddress = address.isValid() && (address.scheme() == u"https" || address.scheme() == u"http" ||
                                                 address.scheme() == u"mailto");
    if (isAddress) return QDesktopServices::openUrl(address);
    const auto path = files_.readPath(target);
    std::error_code error;
    if (!std::filesystem::exists(path, error)) return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path.string())));
}

} // namespace velmoriax::desktop
