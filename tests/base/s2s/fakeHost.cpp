// A translator host that translates nothing: it takes its job like the real one and then does, line by line,
// what the option "script" of the first input tells it.
//
//   say TEXT              the text as a line
//   repeat TEXT           the same for ever
//   bytes HEX             these bytes, without a line end
//   ready                 a message with the key "ready"
//   flood N               N messages, of which every tenth is for the error stream
//   write NAME TEXT       a file in the staging folder
//   chief TEXT            the output itself
//   keep-job FILE         a copy of the job
//   keep-command FILE     waits for a command and keeps a copy
//   list FILE             the descriptors that are open here
//   copy FILE             the output itself, with the content of the file
//   make FILE             an empty file
//   unless FILE STEP      the step, when there is no such file
//   tell FIFO             waits until somebody awaits it
//   await FIFO            waits until all who tell or hold it are done
//   hold FIFO             keeps others waiting until this process is gone
//   lock FILE             ends with status 98 when another process that did the same still lives
//   crash-once FILE       crashes, unless FILE, which it makes, is there already
//   hang                  waits, and ends as cancelled when told to
//   deaf                  waits for ever, whatever it is told
//   child FIFO            starts a process that lives for ever; both keep the named pipe open for writing
//   close                 closes the socket and goes on
//   signal N, exit N      ends so
//   end STATUS P F        the last line; N entities processed and failed

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <unistd.h>

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
namespace fs = std::filesystem;

void print(std::string const & text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void write_file(fs::path const & file, std::istringstream & words)
{
    std::string text;
    std::getline(words >> std::ws, text);
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

void print_bytes(std::string const & hex)
{
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        std::putchar(std::stoi(hex.substr(i, 2), nullptr, 16));
}

void list_descriptors(std::string const & file)
{
    std::string names;
    for (auto const & entry : fs::directory_iterator("/proc/self/fd"))
        names += entry.path().filename().native() + " ";
    std::ofstream(file) << names;
}

void await(std::string const & fifo)
{
    std::fflush(stdout);
    int const descriptor = open(fifo.c_str(), O_RDONLY);
    char byte;
    while (read(descriptor, &byte, 1) > 0)
        continue;
    close(descriptor);
}

void lock(std::string const & file)
{
    if (flock(open(file.c_str(), O_RDWR | O_CREAT, 0600), LOCK_EX | LOCK_NB) != 0)
        std::_Exit(98);
}

[[noreturn]] void wait_for_ever()
{
    std::fflush(stdout);
    for (;;)
        pause();
}

void wait_for_command()
{
    std::fflush(stdout);
    std::string line;
    if (!std::getline(std::cin, line))
        std::_Exit(0);
    auto const command = json::parse(line, nullptr, false);
    print(command == json{{"command", "cancel"}}
              ? R"({"event":"end","status":"cancelled","processed":0,"failed":0})"
              : R"({"not":"understood"})");
    print("\n");
}

[[noreturn]] void die_of(int signal)
{
    std::fflush(stdout);
    rlimit const no_core{0, 0};
    setrlimit(RLIMIT_CORE, &no_core);
    std::signal(signal, SIG_DFL);
    raise(signal);
    std::abort();
}

void do_step(std::string const & verb, std::istringstream & words, json const & job)
{
    std::string word;
    if (verb == "say") {
        std::getline(words >> std::ws, word);
        print(word + "\n");
    } else if (verb == "repeat") {
        std::getline(words >> std::ws, word);
        for (;;)
            print(word + "\n");
    } else if (verb == "bytes") {
        words >> word;
        print_bytes(word);
    } else if (verb == "ready") {
        print(R"({"event":"message","stream":"output","domain":"test","key":"ready","args":[]})"
              "\n");
        std::fflush(stdout);
    } else if (verb == "flood") {
        int count = 0;
        words >> count;
        for (int i = 0; i < count; ++i)
            std::printf(R"({"event":"message","stream":"%s","domain":"test",)"
                        R"("key":"test::Entity %%d of %%s\n","args":[%d,"face"]})"
                        "\n",
                        i % 10 == 9 ? "error" : "output", i);
    } else if (verb == "write") {
        words >> word;
        write_file(fs::path(job["staging"].get<std::string>()) / word, words);
    } else if (verb == "chief") {
        write_file(job["output"]["file"].get<std::string>(), words);
    } else if (verb == "copy") {
        words >> word;
        fs::copy_file(word, job["output"]["file"].get<std::string>());
    } else if (verb == "make") {
        words >> word;
        std::ofstream{word};
    } else if (verb == "unless") {
        std::string step;
        words >> word >> step;
        if (!fs::exists(word))
            do_step(step, words, job);
    } else if (verb == "tell") {
        words >> word;
        close(open(word.c_str(), O_WRONLY));
    } else if (verb == "hold") {
        words >> word;
        open(word.c_str(), O_WRONLY);
    } else if (verb == "await") {
        words >> word;
        await(word);
    } else if (verb == "lock") {
        words >> word;
        lock(word);
    } else if (verb == "crash-once") {
        words >> word;
        if (!fs::exists(word)) {
            std::ofstream{word};
            die_of(SIGSEGV);
        }
    } else if (verb == "keep-job") {
        words >> word;
        std::ofstream(word) << job.dump();
    } else if (verb == "keep-command") {
        words >> word;
        std::string line;
        std::fflush(stdout);
        std::getline(std::cin, line);
        std::ofstream(word) << line;
    } else if (verb == "list") {
        words >> word;
        list_descriptors(word);
    } else if (verb == "hang") {
        wait_for_command();
    } else if (verb == "deaf") {
        wait_for_ever();
    } else if (verb == "child") {
        words >> word;
        open(word.c_str(), O_WRONLY);
        if (fork() == 0)
            wait_for_ever();
    } else if (verb == "close") {
        std::fflush(stdout);
        close(0);
        close(1);
    } else if (verb == "signal") {
        int number = 0;
        words >> number;
        die_of(number);
    } else if (verb == "exit") {
        int status = 0;
        words >> status;
        std::fflush(stdout);
        std::_Exit(status);
    } else if (verb == "end") {
        int processed = 0;
        int failed = 0;
        words >> word >> processed >> failed;
        print(json{{"event", "end"}, {"status", word}, {"processed", processed}, {"failed", failed}}.dump() +
              "\n");
    } else {
        std::_Exit(99);
    }
}

} // namespace

int main()
{
    std::string line;
    std::getline(std::cin, line);
    auto const job = json::parse(line, nullptr, false);
    if (!job.is_object())
        return 3;
    std::istringstream script(job["inputs"][0]["options"].value("script", std::string()));
    for (std::string step; std::getline(script, step);) {
        std::istringstream words(step);
        std::string verb;
        words >> verb;
        do_step(verb, words, job);
    }
    std::fflush(stdout);
    return 0;
}
