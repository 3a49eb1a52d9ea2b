// SPDX-License-Identifier: MIT
// The emulated printer's process; README.md beside it says how to use it.
#include "tests/support/EmulatedPrinterBus.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <mutex>
#include <optional>
#include <sstream>
#include <stdexcept>

#include <glib-unix.h>
#include <unistd.h>

namespace {
using File = Handle<std::FILE, std::fclose>;
using Fault = EmulatedBehaviour::Fault;

EmulatedPrinterBus::Ids idsFrom(const std::string& text)
{
    static constexpr std::size_t digits = 4;
    if (text.size() != 2 * digits + 1 || text[digits] != ':') {
        throw std::runtime_error("ids are VVVV:PPPP, not " + text);
    }
    return {text.substr(0, digits), text.substr(digits + 1)};
}

/// What the command line and standard input say of the printer's behaviour.
/// False when \a word is none of the words known here.
bool setBehaviour(EmulatedBehaviour& behaviour, const std::string& word, std::istream& rest)
{
    static const std::map<std::string, bool EmulatedBehaviour::*> switches{
        {"kernel-driver", &EmulatedBehaviour::kernelDriver},
        {"detach-refused", &EmulatedBehaviour::detachRefused},
        {"claim-refused", &EmulatedBehaviour::claimRefused},
        {"open-refused", &EmulatedBehaviour::openRefused},
    };
    static const std::map<std::string, Fault> faults{
        {"stall", Fault::Stall},
        {"short-write", Fault::ShortWrite},
        {"unplug-during", Fault::Unplug},
    };
    const auto number = [&rest, &word] {
        long value = 0;
        if (!(rest >> value) || value < 0) {
            throw std::runtime_error(word + " needs a number");
        }
        return value;
    };
    if (const auto found = switches.find(word); found != switches.end()) {
        std::string state;
        behaviour.*found->second = !(rest >> state) || state != "off";
    } else if (const auto fault = faults.find(word); fault != faults.end()) {
        behaviour.faultBytes
            = fault->second == Fault::Stall ? 0 : static_cast<std::size_t>(number());
        behaviour.fault = fault->second;
    } else if (word == "unplug-after") {
        behaviour.unplugAfter = number();
    } else {
        return false;
    }
    return true;
}

class Host
{
public:
    Host(int argc, char** argv)
        : loop_(g_main_loop_new(nullptr, FALSE))
    {
        std::vector<EmulatedPrinterBus::Ids> devices;
        bool devicesGiven = false;
        EmulatedRecords records;
        for (int i = 1; i < argc; ++i) {
            const std::string option = argv[i];
            const std::string value = i + 1 < argc ? argv[i + 1] : "";
            if (option == "--no-device") {
                devicesGiven = true;
            } else if (option == "--device") {
                devices.push_back(idsFrom(value));
                devicesGiven = true;
                ++i;
            } else if (option == "--record") {
                records.lines = openFile(lines_, value);
                ++i;
            } else if (option == "--bytes") {
                records.bytes = openFile(bytes_, value);
                ++i;
            } else {
                const bool hasValue = !value.empty() && value[0] != '-';
                std::istringstream rest(hasValue ? value : "");
                if (option.rfind("--", 0) != 0
                    || !setBehaviour(behaviour_, option.substr(2), rest)) {
                    throw std::runtime_error("unknown option " + option);
                }
                i += hasValue ? 1 : 0;
            }
        }
        if (!devicesGiven) {
            devices.push_back({"04b8", "0e15"});
        }
        bus_.emplace(std::move(devices), behaviour_, records);
    }

    void run()
    {
        std::cout << bus_->directory() << std::endl;
        g_unix_fd_add(STDIN_FILENO, static_cast<GIOCondition>(G_IO_IN | G_IO_HUP), onInput, this);
        g_main_loop_run(loop_.get());
    }

private:
    static std::FILE* openFile(File& file, const std::string& path)
    {
        file.reset(std::fopen(path.c_str(), "wb"));
        if (!file) {
            throw std::runtime_error("cannot write " + path);
        }
        return file.get();
    }

    static gboolean onInput(gint, GIOCondition, gpointer self)
    {
        return static_cast<Host*>(self)->readCommands() ? TRUE : FALSE;
    }

    bool readCommands()
    {
        char buffer[256];
        const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0) {
            g_main_loop_quit(loop_.get());
            return false;
        }
        input_.append(buffer, static_cast<std::size_t>(count));
        for (auto end = input_.find('\n'); end != std::string::npos; end = input_.find('\n')) {
            obey(input_.substr(0, end));
            input_.erase(0, end + 1);
        }
        return true;
    }

    void obey(const std::string& line)
    {
        std::istringstream rest(line);
        std::string word;
        rest >> word;
        const std::lock_guard lock(behaviour_.guard);
        try {
            if (word == "unplug") {
                bus_->unplug();
            } else if (word == "plug") {
                bus_->plug();
            } else if (word == "quit") {
                g_main_loop_quit(loop_.get());
            } else if (!setBehaviour(behaviour_, word, rest)) {
                throw std::runtime_error("unknown command " + word);
            }
            std::cout << "ok" << std::endl;
        } catch (const std::exception& error) {
            std::cout << "error " << error.what() << std::endl;
        }
    }

    Handle<GMainLoop, g_main_loop_unref> loop_;
    File lines_;
    File bytes_;
    EmulatedBehaviour behaviour_;
    std::optional<EmulatedPrinterBus> bus_;
    std::string input_;
};
} // namespace

int main(int argc, char** argv)
{
    try {
        Host(argc, argv).run();
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "emulated-printer: " << error.what() << "\n";
        return EXIT_FAILURE;
    }
}
