# The fuzz targets, each <name>_fuzz.cpp with the seeds in corpus/<name>/, and what each links. Read by fuzz/ for
# libFuzzer and by tests/corpus/ for the plain tests over the seeds.
set(FUZZ_TARGETS import packed_file preview_url server_list shop_file template xml_check)
set(FUZZ_LINKS_import tarnwick_shop_file)
set(FUZZ_LINKS_packed_file tarnwick_backup)
set(FUZZ_LINKS_preview_url tarnwick_pages_preview)
set(FUZZ_LINKS_server_list tarnwick_publish)
set(FUZZ_LINKS_shop_file tarnwick_shop_file)
set(FUZZ_LINKS_template tarnwick_template_engine)
set(FUZZ_LINKS_xml_check tarnwick_base expat)
