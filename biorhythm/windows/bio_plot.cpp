// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/bio_plot.h"

#include "base/run_time_error.h"
#include "biorhythm/chart_text.h"
#include "widgets/conversions.h"

#include <QAccessibleWidget>
#include <QLibrary>
#include <QPainter>
#include <QVBoxLayout>

namespace velmoriax::biorhythm {

namespace {

/// The chart for a screen reader.
class PlotForReader : public QAccessibleWidget {
public:
    explicit PlotForReader(BioPlot* plot) : QAccessibleWidget(plot, QAccessible::Chart) {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Description) return QAccessibleWidget::text(kind);
        return widgets::qtText(chartText(static_cast<BioPlot*>(widget())->chart()));
    }
};

QAccessibleInterface* plotForReader(const QString&, QObject* object) {
    auto* plot = qobject_cast<BioPlot*>(object);
    return plot ? new PlotForReader(plot) : nullptr;
}

} // namespace

PlotDrawing& loadPlotDrawing(const std::string& pluginFolder, QWidget& parent) {
    using Maker = PlotDrawing*(QWidget*);
    const std::string library = pluginFolder + "/velmoriax_chart.so";
    const auto make = reinterpret_cast<Maker*>(QLibrary::resolve(widgets::qtText(library), "velmoriaxPlotDrawing"));
    if (!make) throw base::RunTimeError(base::RunTimeError::Code::fileNotFound, library);
    return *make(&parent);
}

BioPlot::BioPlot(QWidget* parent) : QWidget(parent) {
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(plotForReader), true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Biorhythm chart"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
}

void BioPlot::takeDrawing(PlotDrawing& drawing) {
    drawing_ = &drawing;
    layout()->addWidget(&drawing.widget());
}

void BioPlot::showChart(const ChartData& chart) {
    chart_ = chart;
    if (drawing_) drawing_->show(chart);
    if (!hasFocus() || !QAccessible::isActive()) return;
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

QSize BioPlot::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.averageCharWidth() * 100, metrics.height() * 18};
}

QSize BioPlot::minimumSizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.averageCharWidth() * 60, metrics.height() * 13};
}

void BioPlot::paintEvent(QPaintEvent*) {
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void BioPlot::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void BioPlot::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

} // namespace velmoriax::biorhythm
