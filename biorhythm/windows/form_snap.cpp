// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/form_snap.h"

#include "biorhythm/bio_texts.h"
#include "biorhythm/windows/profile_view.h"
#include "shell/windows/window_registry.h"

#include <QPixmap>

namespace velmoriax::biorhythm {

namespace {

constexpr int snapQuality = 88; ///< of 100

} // namespace

FormSnap::FormSnap(shell::WindowContext& context) : SecondaryWindow(context) {
    setObjectName(QStringLiteral("FormSnap"));
    setWindowTitle(QStringLiteral("Mi snap"));
}

std::string FormSnap::pathOf(const char* name) const {
    return desktop().files.applicationDirectory() + "\\" + name;
}

QImage FormSnap::capture() const {
    ProfileView* view = windows().loaded<ProfileView>();
    return view ? view->picture() : QImage();
}

void FormSnap::load() {
    auto& files = desktop().files;
    const std::string bitmap = pathOf("mysnap.bmp");
    const std::string result = pathOf("mysnap.jpg");
    const QImage picture = capture();
    bool failed = !files.replace(bitmap, pictureBytes(picture, "BMP").toStdString());
    desktop().boxes.show(platform::BoxIcon::information, std::string(text::snapshotSaved));
    savePictureAsJpeg(picture, result, snapQuality, {files, desktop().boxes, encoders});
    if (files.exists(bitmap) && !files.remove(bitmap)) failed = true;
    if (!failed) desktop().opener.open(result);
}

} // namespace velmoriax::biorhythm
