#include "NumberFormat.h"

#include "NumberFormatSettings.h"
#include "NumberHelper.h"
#include "events/NumberFormatChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"

#include <limits>

namespace Orvo::UI::BasicComponents {

namespace {

std::shared_ptr<NumberFormatSettings> Settings()
{
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    return catalog ? catalog->Get<NumberFormatSettings>() : nullptr;
}

} // namespace

NumberFormat::NumberFormat(QObject* parent)
    : QObject(parent)
{
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    if (const auto eventbus = catalog ? catalog->Get<Kernel::Framework::EventBus>() : nullptr) {
        m_changeConnection = eventbus->Subscribe<Events::NumberFormatChanged>(
            [this](const Events::NumberFormatChanged&) { emit changed(); });
    }
}

bool NumberFormat::decimalComma() const
{
    const auto settings = Settings();
    return settings && settings->GetDecimalMark() == NumberFormatSettings::DecimalMark::Comma;
}

void NumberFormat::setDecimalComma(bool decimalComma)
{
    // The settings announce a real change, which comes back here as changed().
    if (const auto settings = Settings()) {
        settings->SetDecimalMark(decimalComma ? NumberFormatSettings::DecimalMark::Comma
                                              : NumberFormatSettings::DecimalMark::Point);
    }
}

QString NumberFormat::decimalMark() const
{
    return NumberHelper().decimalMark();
}

QString NumberFormat::toEditValue(double value, int decimals) const
{
    NumberHelper helper;
    if (decimals >= 0)
        helper.setDecimals(decimals);
    return helper.toEditValue(value);
}

double NumberFormat::fromEditValue(const QString& text) const
{
    bool ok = false;
    const double value = NumberHelper().fromEditValue(text, &ok);
    return ok ? value : std::numeric_limits<double>::quiet_NaN();
}

} // namespace Orvo::UI::BasicComponents
