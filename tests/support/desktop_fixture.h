// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/desktop_services.h"
#include "support/fake_tray.h"
#include "support/fakes.h"
#include "support/qt_application.h"
#include "widgets/input_rules.h"
#include "widgets/picture_box.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QImage>
#include <QTest>
#include <QTimer>

/// Windows without a desktop: all its services are fakes, on the offscreen platform.
namespace velmoriax::test {

/// The bytes of a small black picture with one pixel, by default the first, that distinguishes it from the others.
inline std::string pictureBytes(QRgb mark, QPoint at = {}) {
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::black);
    picture.setPixel(at, mark);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes.toStdString();
}

/// The first pixel of the back that is part of the reading windows.
inline QRgb ownBack() {
    return QImage(QStringLiteral(":/tarot/card_back.jpg")).pixel(0, 0);
}

/// A desktop of fakes, and functions that find and use the controls of its windows.
class DesktopFixture : public testing::Test {
protected:
    /// A control by its object name.
    template<typename Control>
    static Control& control(const QWidget& window, const char* name) {
        auto* found = window.findChild<Control*>(QString::fromUtf8(name));
        if (!found) throw std::logic_error(std::string("no control ") + name);
        return *found;
    }
    /// The text of a label, a button or a field.
    static std::string textOf(const QWidget& window, const char* name) {
        const QVariant text = control<QWidget>(window, name).property("text");
        if (!text.isValid()) throw std::logic_error(std::string("no text on ") + name);
        return text.toString().toStdString();
    }
    static std::string tipOf(const QWidget& window, const char* name) {
        return control<QWidget>(window, name).toolTip().toStdString();
    }
    /// The letters by which the controls of a window are reached together with Alt; each may occur once.
    static QStringList mnemonicsOf(const QWidget& window) {
        QStringList letters;
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            const QString text = widget->property(widget->inherits("QGroupBox") ? "title" : "text").toString();
            const qsizetype mark = text.indexOf(u'&');
            if (mark >= 0 && !widget->inherits("QMenu")) letters << text.mid(mark + 1, 1).toUpper();
        }
        return letters;
    }
    static bool shown(const QWidget& window, const char* name) {
        return control<QWidget>(window, name).isVisibleTo(&window);
    }
    /// A pixel of the picture in a box.
    static QRgb onShow(const QWidget& window, const char* name, QPoint at = {}) {
        return control<widgets::PictureBox>(window, name).picture().pixel(at);
    }
    static void press(const QWidget& window, const char* name) { control<QAbstractButton>(window, name).click(); }
    /// Lets a timer, by its name, time out.
    static void fire(const QObject& owner, const char* timer) {
        auto* found = owner.findChild<QTimer*>(QString::fromUtf8(timer));
        if (!found) throw std::logic_error(std::string("no timer ") + timer);
        QMetaObject::invokeMethod(found, "timeout");
    }

    shell::DesktopServices servicesOn(platform::Files& where) {
        return {clock,
                zone,
                where,
                sounds,
                songs,
                opener,
                boxes,
                autostart,
                events,
                random,
                tray,
                taskBar,
                VELMORIAX_PLUGIN_DIR};
    }

    static QApplication& applicationWithRules() {
        static const auto* const rules = new widgets::InputRules(application());
        static_cast<void>(rules);
        return application();
    }

    QApplication& qt = applicationWithRules();
    FakeClock clock;
    FakeZone zone;
    FakeFiles files;
    FakeSounds sounds;
    FakeSongPlayer songs;
    FakeOpener opener;
    FakeBoxes boxes;
    FakeAutostart autostart;
    FakeEvents events;
    FakeRandom random;
    FakeNotification notification;
    FakeTaskBar taskBar;
    FakeTray tray;
    shell::DesktopServices services = servicesOn(files);
};

} // namespace velmoriax::test
