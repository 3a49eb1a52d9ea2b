// SPDX-License-Identifier: MIT
#include "central/Order.h"

namespace {
std::optional<CentralAction> actionOf(const std::string& option)
{
    if (option == "--preparer") {
        return CentralAction::Prepare;
    }
    if (option == "--envoyer") {
        return CentralAction::Send;
    }
    if (option == "--suivre") {
        return CentralAction::Follow;
    }
    if (option == "--reprendre") {
        return CentralAction::TakeOver;
    }
    if (option == "--aide" || option == "--help" || option == "-h") {
        return CentralAction::Help;
    }
    if (option == "--version") {
        return CentralAction::Version;
    }
    return std::nullopt;
}

bool takesUri(CentralAction action)
{
    return action != CentralAction::Help && action != CentralAction::Version;
}
} // namespace

CentralOrder parseCentralOrder(const std::vector<std::string>& arguments)
{
    CentralOrder order;
    bool isAsked = false;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& option = arguments[at];
        const std::string value = at + 1 < arguments.size() ? arguments[at + 1] : std::string();
        const bool hasValue = !value.empty() && value.front() != '-';
        const auto action = actionOf(option);
        bool isTaken = false;
        if (action && !isAsked) {
            isAsked = true;
            order.action = *action;
            isTaken = hasValue && takesUri(*action);
            order.uri = isTaken ? value : std::string();
        } else if (option == "--langue" && (value == "en" || value == "fr")) {
            order.language = value == "en" ? Language::English : Language::French;
            isTaken = true;
        } else if ((option == "--dossier" || option == "--nom") && hasValue) {
            (option == "--nom" ? order.name : order.folder) = value;
            isTaken = true;
        } else {
            throw CentralBadUsage{order.language};
        }
        at += isTaken ? 1 : 0;
    }
    if (!isAsked || (order.action == CentralAction::Prepare && order.uri.empty())) {
        throw CentralBadUsage{order.language};
    }
    return order;
}
