# The reference as a site, by Sphinx: tools/docs gives it the sources that tools/lib/reference.py writes.
import sys
from pathlib import Path

here = Path(__file__).resolve().parent
sys.path.insert(0, str(here.parent / "tools/lib"))

project = "VecMat"
author = "the VecMat authors"
html_title = "VecMat"
extensions = ["myst_parser", "sphinx_inline_tabs", "sphinx_copybutton", "reference_sphinx"]
myst_enable_extensions = ["dollarmath", "deflist", "substitution"]
myst_heading_anchors = 3
myst_url_schemes = ["http", "https", "mailto", "doxygen"]
suppress_warnings = ["myst.header"]
html_theme = "furo"
html_theme_options = {"navigation_with_keys": False}
html_static_path = [str(here / "site/static")]
html_css_files = ["dark.css", "reference.css"]
html_js_files = ["scorer.js", "summaries.js", "reference.js"]
html_math_renderer = "mathml"
html_show_sourcelink = False
html_copy_source = False
html_show_search_summary = False
html_show_copyright = False
html_show_sphinx = False
templates_path = []
copybutton_prompt_text = r">>> |\.\.\. |> "
copybutton_prompt_is_regexp = True
highlight_language = "none"
pygments_style = "friendly"
pygments_dark_style = "monokai"
