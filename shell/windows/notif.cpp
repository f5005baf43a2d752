// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/notif.h"

#include "shell/popup_places.h"
#include "shell/windows/popup_pictures.h"
#include "shell/windows/screen_measures.h"
#include "ui_notif.h"
#include "widgets/accessible_role.h"
#include "widgets/conversions.h"
#include "widgets/look.h"
#include "widgets/topmost.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QThread>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace velmoriax::shell {

namespace {

constexpr int slideMs = 320; ///< long enough for the eye to follow

/// What a text leaves free at the right: the moon of the small back, and a rim in the others.
constexpr int moonWidth = 74;
constexpr int rightRim = 8;

/// `Picture4`, `Picture2` and `Picture3`, by size.
const std::array<QString, 3> backs{QStringLiteral(":/popups/notif_small.png"),
                                   QStringLiteral(":/popups/notif_middle.png"),
                                   QStringLiteral(":/popups/notif_large.png")};

constexpr Qt::WindowFlags smallWindow =
    Qt::Tool | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus;

QFont arial(const QFont& like) {
    QFont font = like;
    font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans"), like.family()});
    return font;
}

void waitUntil(const QElapsedTimer& clock, qint64 microseconds) {
    const qint64 left = microseconds - clock.nsecsElapsed() / 1000;
    if (left > 0) QThread::usleep(static_cast<unsigned long>(left));
}

} // namespace

// The window manager has no say over this window: one that begins below the screen would be brought onto it, and a
// notification is neither to be listed nor to be given the focus.
Notif::Notif(WindowContext& context) : SecondaryWindow(context, smallWindow), ui_(std::make_unique<Ui::Notif>()) {
    widgets::setAccessibleRole(*this, QAccessible::AlertMessage);
    openPopupPictures();
    ui_->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    QFont bold = arial(font());
    bold.setBold(true);
    ui_->LabelTit->setFont(bold);
    ui_->LabelTit->setProperty("role", QStringLiteral("title"));
    ui_->Image1->setIcon(QIcon(QStringLiteral(":/popups/close.png")));
    ui_->scroll->viewport()->setAutoFillBackground(false);
    ui_->mTexto->setAutoFillBackground(false);
    connect(ui_->Image1, &QToolButton::clicked, this, &Notif::dismiss);
}

Notif::~Notif() = default;

void Notif::load() {
    if (state().notifOpen) {
        SlideForm(*this, down);
        desktop().events.processEvents();
    }
    takeSize();
    const ScreenMeasures screen = measuresOf(QGuiApplication::primaryScreen());
    top_ = notifStartTop(screen);
    move(notifLeft(screen, width()), top_);
    SlideForm(*this, up);
}

void Notif::onUnload() {
    state().notifOpen = false;
}

void Notif::SlideForm(QWidget& Ventana, int Direction) {
    if (!state().notifOpen) {
        takeSize();
        if (Direction == up) return slideUp(Ventana);
        if (Direction != down) return;
    }
    slideDown(Ventana);
}

void Notif::takeSize() {
    const auto characters = widgets::qtText(state().notificationText).toUcs4().size();
    const NotifSize size = notifSize(static_cast<std::size_t>(characters));
    ui_->Picture1->setBack(backs.at(static_cast<std::size_t>(size.back)));
    ui_->mTexto->setContentsMargins(0, 0, size.back == NotifBack::small ? moonWidth : rightRim, 0);
    setFixedSize(ui_->Picture1->backSize().width(), size.height);
}

void Notif::slideUp(QWidget& Ventana) {
    const ScreenMeasures screen = measuresOf(QGuiApplication::primaryScreen());
    ui_->mTexto->setText(widgets::qtText(state().notificationText));
    fitText();
    Ventana.move(notifLeft(screen, Ventana.width()), top_);
    Ventana.show();
    if (!slide(Ventana, -1, [&] { return notifTop(screen, Ventana.height()); })) return;
    state().notifOpen = true;
    widgets::Topmost(Ventana);
}

void Notif::slideDown(QWidget& Ventana) {
    const ScreenMeasures screen = measuresOf(QGuiApplication::primaryScreen());
    widgets::NotTopmost(Ventana);
    if (!slide(Ventana, 1, [&] { return notifHiddenTop(screen, Ventana.height()); })) return;
    Ventana.hide(); // only moved, it would be on a screen below, or be seen when the screen grows
    state().notifOpen = false;
}

/// One pixel a step, and all events at each. False when the program ends, the window is unloaded or another slide
/// begins meanwhile: the latest one decides where the window is, and sets the flag.
bool Notif::slide(QWidget& Ventana, int step, const std::function<int()>& goal) {
    const int own = ++slides_;
    const qint64 pace = slideMs * 1000 / std::max(1, std::abs(goal() - top_));
    QElapsedTimer clock;
    clock.start();
    for (qint64 steps = 1; step * (goal() - top_) > 0; ++steps) {
        top_ += step;
        Ventana.move(Ventana.x(), top_);
        desktop().events.processEvents();
        if (state().closingAll || !isLoaded() || own != slides_) return false;
        waitUntil(clock, steps * pace);
    }
    return true;
}

bool Notif::textFits(const QFont& letters) const {
    const QSize room = ui_->scroll->size().shrunkBy(ui_->mTexto->contentsMargins());
    const QRect unbounded(0, 0, room.width(), QWIDGETSIZE_MAX);
    const QFontMetrics metrics(letters, this);
    return metrics.boundingRect(unbounded, Qt::TextWordWrap, ui_->mTexto->text()).height() <= room.height();
}

/// The height is given by the length of the text. A long text takes smaller letters, with a user's large letters the
/// window grows wider, and only then the text has to be scrolled.
void Notif::fitText() {
    constexpr double smallestShare = 0.6;
    constexpr double legible = 8; // points
    constexpr double fontStep = 0.5;
    constexpr int widthStep = 20;
    const int widest = width() * 7 / 4;
    QFont letters = arial(font());
    QFont smallest = letters;
    smallest.setPointSizeF(std::min(letters.pointSizeF(), std::max(legible, letters.pointSizeF() * smallestShare)));
    layOut();
    while (!textFits(smallest) && width() < widest) {
        setFixedWidth(width() + widthStep);
        layOut();
    }
    while (!textFits(letters) && letters.pointSizeF() > smallest.pointSizeF())
        letters.setPointSizeF(std::max(letters.pointSizeF() - fontStep, smallest.pointSizeF()));
    ui_->mTexto->setFont(letters);
}

/// A window that has not been shown yet does not lay itself out.
void Notif::layOut() {
    for (QLayout* part : {layout(), ui_->Picture1->layout()}) {
        part->invalidate();
        part->activate();
    }
}

void Notif::dismiss() {
    SlideForm(*this, down);
    if (!isLoaded() || isVisible()) return; // a newer text is shown
    state().notifOpen = false;
    desktop().events.processEvents();
    if (!isVisible()) unload();
}

} // namespace velmoriax::shell
