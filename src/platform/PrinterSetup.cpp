#include "platform/PrinterSetup.h"

#include "platform/BlockingServices.h"
#include "platform/Graphics.h"

#include <QPdfWriter>

#include <QRectF>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr double kHalfInch = 36;

std::unique_ptr<Graphics> pagesOf(std::unique_ptr<QPdfWriter> writer, const PrinterSetup& setup)
{
    writer->setPageLayout(setup.pageLayout());
    writer->setCreator(u"Quillmark"_s);
    return std::make_unique<Graphics>(std::move(writer));
}

QPageLayout defaultPage()
{
    return QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                       QMarginsF(kHalfInch, kHalfInch, kHalfInch, kHalfInch), QPageLayout::Point);
}

} // namespace

bool PrinterSetup::PageSetupDialog()
{
    return blockingServices().pageSetupDialog(*this);
}

int PrinterSetup::Width() const
{
    return int(pageLayout().paintRect(QPageLayout::Point).width());
}

int PrinterSetup::Height() const
{
    return int(pageLayout().paintRect(QPageLayout::Point).height());
}

QPageLayout PrinterSetup::pageLayout() const
{
    static const QRegularExpression form(
        u"^(\\d+(?:\\.\\d+)?)x(\\d+(?:\\.\\d+)?) (portrait|landscape)((?: \\d+(?:\\.\\d+)?){4})$"_s);
    const QRegularExpressionMatch page = form.match(SetupString);
    if (!page.hasMatch())
        return defaultPage();
    const QSizeF size(page.captured(1).toDouble(), page.captured(2).toDouble());
    const QStringList margins = page.captured(4).split(u' ', Qt::SkipEmptyParts);
    if (size.width() < 1 || size.height() < 1)
        return defaultPage();
    QPageLayout layout(QPageSize(size, QPageSize::Point), page.captured(3) == u"landscape" ? QPageLayout::Landscape
                                                                                           : QPageLayout::Portrait,
                       QMarginsF(), QPageLayout::Point);
    layout.setMinimumMargins(QMarginsF());
    const QMarginsF wanted(margins[0].toDouble(), margins[1].toDouble(), margins[2].toDouble(), margins[3].toDouble());
    // Margins that leave no room on the page aren't a page one can print on.
    if (!layout.setMargins(wanted) || layout.paintRect(QPageLayout::Point).isEmpty())
        return defaultPage();
    return layout;
}

QString PrinterSetup::setupStringOf(const QPageLayout& layout)
{
    const QSizeF size = layout.pageSize().size(QPageSize::Point);
    const QMarginsF margins = layout.margins(QPageLayout::Point);
    return u"%1x%2 %3 %4 %5 %6 %7"_s.arg(size.width())
        .arg(size.height())
        .arg(layout.orientation() == QPageLayout::Landscape ? u"landscape"_s : u"portrait"_s)
        .arg(margins.left())
        .arg(margins.top())
        .arg(margins.right())
        .arg(margins.bottom());
}

std::unique_ptr<Graphics> pdfPages(QIODevice* device, const PrinterSetup& setup)
{
    return pagesOf(std::make_unique<QPdfWriter>(device), setup);
}

std::unique_ptr<Graphics> pdfPages(const QString& path, const PrinterSetup& setup)
{
    return pagesOf(std::make_unique<QPdfWriter>(path), setup);
}

