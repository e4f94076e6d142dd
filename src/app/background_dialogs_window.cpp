#include "app/background_dialogs_window.h"

namespace tidemark {

BackgroundDialogs::BackgroundDialogs(Document& document, Session& session, Platform& platform,
                                     MapView& map, QWidget& owner)
    : document_(document), session_(session), platform_(platform), map_(map), owner_(owner) {}

MapScreen BackgroundDialogs::Screen() {
    return {[this](const std::string& path) { return map_.Show_image(path); },
            [this] {
                const QSize size = map_.Canvas_size();
                return ViewSize{size.width(), size.height()};
            },
            [this](const GeoreferenceTexts& texts) { return Background_properties().Ask(texts); }};
}

void BackgroundDialogs::Load() {
    Load_background(document_, session_, platform_, Screen());
}

void BackgroundDialogs::Change_properties() {
    Change_background_properties(document_, platform_.messages, Screen());
}

void BackgroundDialogs::Calculate() {
    session_.CalcFromBGproperties = false;
    Calculator().exec();
}

void BackgroundDialogs::Reload_later() {
    if (document_.Now().BackgroundLoaded)
        QMetaObject::invokeMethod(this, &BackgroundDialogs::Reload, Qt::QueuedConnection);
}

void BackgroundDialogs::Reload() {
    if (!document_.Now().BackgroundLoaded) return;
    Reload_background(document_, session_, platform_.messages, Screen().Show_image);
    if (document_.Is_in_step()) Q_EMIT Changed_in_step();
}

BGproperties& BackgroundDialogs::Background_properties() {
    if (!background_properties_)
        background_properties_ = new BGproperties(session_, Calculator(), &owner_);
    return *background_properties_;
}

CellCalculator& BackgroundDialogs::Calculator() {
    if (!calculator_) calculator_ = new CellCalculator(session_, platform_.messages, &owner_);
    return *calculator_;
}

}  // namespace tidemark
