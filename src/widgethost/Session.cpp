#include "widgethost/SessionContents.hpp"

#include <utility>

namespace widgethost {

namespace {

/// Keeps a card open.
template <class Contents>
class OpenCard final : public Display {
  public:
    OpenCard(Contents& contents, typename Contents::Slot slot) : contents_(contents), slot_(slot) {}
    ~OpenCard() override { contents_.close(slot_); }

    void setScale(double scale) override { contents_.setScale(slot_, scale); }
    void press(const intents::ArchivedAction& action) override { contents_.press(slot_, action); }

  private:
    Contents& contents_;
    typename Contents::Slot slot_;
};

}  // namespace

Session::Session(const SessionOptions& options) : contents_(std::make_unique<Contents>(options)) {}
Session::~Session() = default;

const std::vector<remote::WidgetDescription>& Session::gallery() const {
    return contents_->gallery;
}

void Session::onGalleryChanged(std::function<void()> changed) {
    contents_->onGalleryChanged = std::move(changed);
}

std::unique_ptr<Display> Session::display(std::string kind, double scale, Show show) {
    const auto slot = contents_->open(std::move(kind), scale, Occasion::timeline, std::move(show));
    return std::make_unique<OpenCard<Contents>>(*contents_, slot);
}

std::unique_ptr<Display> Session::preview(std::string kind, double scale, Show show) {
    const auto slot =
        contents_->open(std::move(kind), scale, Occasion::placeholder, std::move(show));
    return std::make_unique<OpenCard<Contents>>(*contents_, slot);
}

void Session::reload(std::string_view kind) {
    contents_->pacing.ask(std::string(kind));
}

}  // namespace widgethost
