// SPDX-License-Identifier: GPL-3.0-or-later
#undef QT_NO_KEYWORDS // the chart library's header writes them
#include "biorhythm/windows/plot_drawing.h"
#include "biorhythm/windows/bio_colours.h"
#include "biorhythm/windows/cycle_graph.h"
#include "widgets/look.h"

namespace velmoriax::biorhythm {

namespace {

constexpr double highest = 1.12; ///< of the value axis; above 1, so that a line at 1 is drawn with its whole width
constexpr double rowCount = chartRowCount;
constexpr int labelGap = 2;      ///< pixels between the labels of two rows
constexpr int legendSpacing = 6; ///< pixels between the columns of the legend

QColor faint(QColor colour, int alpha) {
    colour.setAlpha(alpha);
    return colour;
}

void styleAxis(QCPAxis& axis, const QFont& font) {
    axis.setBasePen(QPen(widgets::look::quietText(), 0));
    axis.setTickPen(Qt::NoPen);
    axis.setSubTickPen(Qt::NoPen);
    axis.setTickLabelColor(widgets::look::text());
    axis.setTickLabelFont(font);
    axis.grid()->setPen(QPen(faint(widgets::look::quietText(), 34), 0));
    axis.grid()->setZeroLinePen(QPen(faint(widgets::look::text(), 150), 0));
}

/// The plot, with one graph for each series.
class Drawing : public QCustomPlot, public PlotDrawing {
public:
    explicit Drawing(QWidget* parent);

    void show(const ChartData& chart) override;
    QWidget& widget() override { return *this; }

private:
    void addRows();
    void addSides();
    void addLegend();
    void markReading();
    void addSeries();
    void showSeriesCount(std::size_t count);
    void resizeEvent(QResizeEvent* event) override;
    void fitTexts();
    void labelRows();
    void arrangeLegend();
    int widestLegendItem() const;

    QSharedPointer<QCPAxisTickerText> rows_{new QCPAxisTickerText};
    std::array<CycleGraph*, chartSeriesCount> series_{};
    std::size_t shown_ = 0;
    std::array<int, chartRowCount> labels_{}; ///< of the rows
};

Drawing::Drawing(QWidget* parent) : QCustomPlot(parent) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setBackground(widgets::look::background());
    axisRect()->setBackground(plotBackground());
    axisRect()->setMinimumMargins(QMargins(0, 2, 2, 0));
    addRows();
    addSides();
    addLegend();
    markReading();
    addSeries();
}

void Drawing::addRows() {
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    styleAxis(*xAxis, small);
    xAxis->setTicker(rows_);
    xAxis->setRange(0.4, rowCount + 0.6);
}

void Drawing::addSides() {
    const QSharedPointer<QCPAxisTickerText> sides(new QCPAxisTickerText);
    sides->addTicks({{1.0, QStringLiteral("High")}, {0.0, QStringLiteral("Critical")}, {-1.0, QStringLiteral("Low")}});
    styleAxis(*yAxis, font());
    yAxis->setTicker(sides);
    yAxis->setRange(-highest, highest);
}

void Drawing::addLegend() {
    axisRect()->insetLayout()->take(legend);
    plotLayout()->insertRow(0);
    plotLayout()->addElement(0, 0, legend);
    plotLayout()->setRowStretchFactor(0, 0.001);
    legend->setVisible(true);
    legend->setFillOrder(QCPLegend::foColumnsFirst);
    legend->setWrap(cycleCount);
    legend->setBrush(Qt::NoBrush);
    legend->setBorderPen(Qt::NoPen);
    legend->setTextColor(widgets::look::text());
    legend->setFont(font());
    legend->setIconSize(30, 16);
    legend->setMargins(QMargins(4, 0, 4, 0));
    legend->setRowSpacing(0);
}

void Drawing::markReading() {
    const double row = readingRow + 1;
    auto* band = new QCPItemRect(this);
    band->setLayer(QStringLiteral("background"));
    band->topLeft->setCoords(row - 0.5, highest);
    band->bottomRight->setCoords(row + 0.5, -highest);
    band->setPen(Qt::NoPen);
    band->setBrush(faint(widgets::look::gold(), 60));
    auto* line = new QCPItemStraightLine(this);
    line->setLayer(QStringLiteral("background"));
    line->point1->setCoords(row, -highest);
    line->point2->setCoords(row, highest);
    line->setPen(QPen(widgets::look::gold(), 1));
}

void Drawing::addSeries() {
    for (std::size_t i = 0; i < chartSeriesCount; ++i) series_[i] = new CycleGraph(*xAxis, *yAxis, i);
    new CycleBadges(*this, series_);
}

/// Hides the second profile's series in chart and legend when they are not drawn.
void Drawing::showSeriesCount(std::size_t count) {
    if (count == shown_) return;
    shown_ = count;
    legend->clearItems();
    for (std::size_t i = 0; i < chartSeriesCount; ++i) series_[i]->setVisible(i < count);
    for (std::size_t i = 0; i < count; ++i) series_[i]->addToLegend();
}

void Drawing::resizeEvent(QResizeEvent* event) {
    QCustomPlot::resizeEvent(event);
    fitTexts();
}

/// With large letters some texts are left out or arranged anew, so that none runs into the next.
void Drawing::fitTexts() {
    labelRows();
    arrangeLegend();
    replot(QCustomPlot::rpQueuedReplot);
}

/// The row of the reading always has its label, and the others at equal distances from it.
void Drawing::labelRows() {
    const QFontMetrics metrics(xAxis->tickLabelFont());
    const double rowWidth = std::max(1.0, xAxis->coordToPixel(2) - xAxis->coordToPixel(1));
    const int needed = metrics.horizontalAdvance(QStringLiteral("30")) + labelGap;
    const int step = std::max(1, static_cast<int>(std::ceil(needed / rowWidth)));
    rows_->clear();
    for (int row = 0; row < static_cast<int>(labels_.size()); ++row) {
        const bool labelled = (row - static_cast<int>(readingRow)) % step == 0;
        rows_->addTick(row + 1, labelled ? QString::number(labels_[static_cast<std::size_t>(row)]) : QString());
    }
}

int Drawing::widestLegendItem() const {
    int widest = 0;
    for (int i = 0; i < legend->itemCount(); ++i)
        widest = std::max(widest, legend->item(i)->minimumOuterSizeHint().width());
    return widest;
}

/// One cycle a column, in smaller letters where they do not fit, or else two columns.
void Drawing::arrangeLegend() {
    const int columnWidth = width() / static_cast<int>(cycleCount) - legendSpacing;
    QFont letters = font();
    for (const double share : {1.0, 0.9, 0.8, 0.7}) {
        letters.setPointSizeF(font().pointSizeF() * share);
        legend->setFont(letters);
        if (widestLegendItem() <= columnWidth) break;
    }
    const int columns = widestLegendItem() <= columnWidth ? cycleCount : 2;
    if (columns == legend->wrap()) return;
    legend->setWrap(columns);
    legend->setFillOrder(QCPLegend::foColumnsFirst, true);
}

void Drawing::show(const ChartData& chart) {
    showSeriesCount(chart.seriesCount);
    std::ranges::copy(chart.rowLabels, labels_.begin());
    for (std::size_t i = 0; i < chart.seriesCount; ++i) series_[i]->showColumnOf(chart);
    fitTexts();
}

} // namespace

} // namespace velmoriax::biorhythm

/// The only function that the library exports: creates a drawing, which its parent owns.
extern "C" velmoriax::biorhythm::PlotDrawing* velmoriaxPlotDrawing(QWidget* parent) {
    return new velmoriax::biorhythm::Drawing(parent);
}
