-- SPDX-License-Identifier: MIT
-- What a browser needs that the guide's Markdown does not say.

local blank = "\u{a0}"

local function ends(inline, pattern)
  return inline and inline.t == "Str" and inline.text:find(pattern)
end

-- French signs stay with their word at the end of a line.
function Inlines(inlines)
  for i, inline in ipairs(inlines) do
    if (inline.t == "Space" or inline.t == "SoftBreak")
      and (ends(inlines[i - 1], "«$") or ends(inlines[i + 1], "^»")
        or ends(inlines[i + 1], "^[;:?!%%/]")) then
      inlines[i] = pandoc.Str(blank)
    end
  end
  return inlines
end

-- The list of the chapters, which the page shows beside the text.
local function leadsWithin(block)
  return #block == 1 and block[1].t == "Plain" and #block[1].content == 1
    and block[1].content[1].t == "Link" and block[1].content[1].target:find("^#")
end

function Pandoc(document)
  for i, block in ipairs(document.blocks) do
    if block.t == "BulletList" then
      for _, item in ipairs(block.content) do
        if not leadsWithin(item) then
          return document
        end
      end
      document.blocks:remove(i)
      return document
    end
  end
end
