// SPDX-License-Identifier: MIT
#include "bench/Floor.h"
#include "db/Db.h"

#include <filesystem>
#include <string>

#include <benchmark/benchmark.h>
#include <stdlib.h>

namespace {
constexpr double limit = 1.1;

constexpr auto setting = "select valeur from Config where param like 'TVA'";
constexpr auto article = "select * from Article where id = 4711 order by Article asc";
constexpr auto menu = "select * from Article order by Article asc";

/// A working directory of its own with a menu of 10,000 articles.
class Shop
{
public:
    Shop()
    {
        std::string name = (std::filesystem::temp_directory_path() / "bench-XXXXXX").string();
        folder_ = mkdtemp(name.data());
        std::filesystem::current_path(folder_);
        Db::DbCreate();
        Db::DbLoad("with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000)"
                   "insert into Article (article, prix) select 'Article ' || i, i / 4.0 from n");
    }
    ~Shop()
    {
        std::filesystem::current_path("/");
        std::filesystem::remove_all(folder_);
    }
    Shop(const Shop&) = delete;
    Shop& operator=(const Shop&) = delete;
    Shop(Shop&&) = delete;
    Shop& operator=(Shop&&) = delete;

private:
    std::filesystem::path folder_;
};

void load(benchmark::State& state, DbRows (*way)(const char*), const char* sql)
{
    for ([[maybe_unused]] auto _ : state) {
        const DbRows rows = way(sql);
        benchmark::DoNotOptimize(rows.data());
    }
    state.counters["limit"] = limit;
}

void compare(const std::string& work, const char* sql)
{
    benchmark::RegisterBenchmark((work + "/floor").c_str(), load, loadByFloor, sql);
    benchmark::RegisterBenchmark((work + "/program").c_str(), load, Db::DbLoad, sql);
}
} // namespace

int main(int argc, char* argv[])
{
    const Shop shop;
    compare("db_setting", setting);
    compare("db_article", article);
    compare("db_menu_of_10000", menu);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
