// A headless browser behind the WebDriver protocol, as far as tests want it.
#pragma once

#include <httplib.h>
#include <nlohmann/json.hpp>

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::report {

class browser {
public:
    using json = nlohmann::json;

    browser() {
        int out[2];
        if (pipe2(out, O_CLOEXEC)) throw std::runtime_error("no pipe");
        driver = fork();
        if (driver == 0) {
            setpgid(0, 0);
            dup2(out[1], STDOUT_FILENO);
            dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
            execlp("chromedriver", "chromedriver", "--port=0", nullptr);
            _exit(127);
        }
        close(out[1]);
        FILE* said = fdopen(out[0], "r");
        int port = 0;
        for (char line[512]; !port && fgets(line, sizeof line, said);)
            sscanf(line, "ChromeDriver was started successfully on port %d", &port);
        fclose(said);
        if (!port) throw std::runtime_error("chromedriver does not start: install chromium-driver");
        http = std::make_unique<httplib::Client>("127.0.0.1", port);
        http->set_read_timeout(120);
        const json options = {{"args",
                               {"--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                                "--window-size=1280,1000", "--hide-scrollbars", "--force-prefers-reduced-motion"}}};
        session = "/session";
        session += "/" + post("", {{"capabilities",
                                    {{"alwaysMatch",
                                      {{"browserName", "chrome"},
                                       {"goog:chromeOptions", options},
                                       {"goog:loggingPrefs", {{"browser", "ALL"}}}}}}}})["sessionId"]
                             .get<std::string>();
    }
    ~browser() {
        if (session.size() > 8) http->Delete(session);
        kill(-driver, SIGTERM);
        waitpid(driver, nullptr, 0);
    }
    browser(const browser&) = delete;

    void open_file(const std::string& path, const std::string& fragment = "") {
        post("/url", {{"url", "about:blank"}});
        post("/url", {{"url", "file://" + path + fragment}});
    }
    // What a function of this body returns.
    json run(const std::string& body, const json& arguments = json::array()) {
        return post("/execute/sync", {{"script", body}, {"args", arguments}});
    }
    json cdp(const std::string& command, const json& parameters = json::object()) {
        return post("/goog/cdp/execute", {{"cmd", command}, {"params", parameters}});
    }
    void click(const std::string& selector) { post("/element/" + find(selector) + "/click", json::object()); }
    void type(const std::string& selector, const std::string& text) {
        post("/element/" + find(selector) + "/value", {{"text", text}});
    }
    // A click at a place of the window.
    void click_at(int x, int y) {
        const json actions = {{{"type", "pointerMove"}, {"duration", 0}, {"x", x}, {"y", y}},
                              {{"type", "pointerDown"}, {"button", 0}},
                              {{"type", "pointerUp"}, {"button", 0}}};
        post("/actions", {{"actions", {{{"type", "pointer"}, {"id", "mouse"}, {"actions", actions}}}}});
    }
    // A key, where the focus is.
    void press(const std::string& key) {
        const json actions = {{{"type", "keyDown"}, {"value", key}}, {{"type", "keyUp"}, {"value", key}}};
        post("/actions", {{"actions", {{{"type", "key"}, {"id", "keys"}, {"actions", actions}}}}});
    }
    // What the console has said since the last call.
    json console() { return post("/se/log", {{"type", "browser"}}); }

private:
    pid_t driver = 0;
    std::unique_ptr<httplib::Client> http;
    std::string session;

    std::string find(const std::string& selector) {
        const json e = post("/element", {{"using", "css selector"}, {"value", selector}});
        return e.begin().value().get<std::string>();
    }
    json post(const std::string& path, const json& body) {
        const auto answer = http->Post((session + path).c_str(), body.dump(), "application/json");
        if (!answer) throw std::runtime_error("the browser does not answer " + path);
        const json value = json::parse(answer->body)["value"];
        if (answer->status != 200) throw std::runtime_error(path + ": " + value.value("message", answer->body));
        return value;
    }
};

} // namespace orvane::report
