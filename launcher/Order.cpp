// SPDX-License-Identifier: MIT
#include "launcher/Order.h"

namespace {
/// The arguments, one after the other.
class Arguments
{
public:
    explicit Arguments(const std::vector<std::string>& all)
        : all_(all)
    { }

    const std::string* next() { return at_ < all_.size() ? &all_[at_++] : nullptr; }
    /// The next argument, left where it is.
    std::string peek() const { return at_ < all_.size() ? all_[at_] : std::string(); }

private:
    const std::vector<std::string>& all_;
    std::size_t at_ = 0;
};

bool isValue(const std::string& argument) { return !argument.empty() && argument.front() != '-'; }
} // namespace

Order parseOrder(const std::vector<std::string>& arguments)
{
    Order order;
    Arguments left(arguments);
    while (const std::string* option = left.next()) {
        const std::string value = left.peek();
        if (*option == "--langue" && (value == "en" || value == "fr")) {
            order.language = value == "en" ? Language::English : Language::French;
            left.next();
        } else if (*option == "--taille" && TillSize::parse(value)) {
            order.size = TillSize::parse(value);
            left.next();
        } else if (*option == "--restaurer") {
            order.action = Action::Restore;
            if (isValue(value)) {
                order.copy = value;
                left.next();
            }
        } else if (*option == "--copies-vers" && (isValue(value) || value == "-")) {
            order.action = Action::SecondPlace;
            order.folder = value;
            left.next();
        } else if (*option == "--central" && (isValue(value) || value == "-")) {
            order.action = Action::Book;
            order.book = value;
            left.next();
        } else if (*option == "--etat") {
            order.action = Action::State;
        } else if (*option == "--aide" || *option == "--help" || *option == "-h") {
            order.action = Action::Help;
        } else if (*option == "--guide") {
            order.action = Action::Guide;
        } else if (*option == "--version") {
            order.action = Action::Version;
        } else {
            throw BadUsage{order.language};
        }
    }
    return order;
}
