// The templates: finished cards with a heading, and room for the rest.
import { bunting, colours as c, confetti, darker, flower, heart, lighter, sprig, times, warm, sheet, script, small, dotted, upright, lying } from './tekenen.mjs';

const candle = (x, y, fill) => `<rect x="${x - 5}" y="${y}" width="10" height="36" rx="2" fill="${fill}"/><path d="M${x - 5} ${y + 12}L${x + 5} ${y + 6}M${x - 5} ${y + 24}L${x + 5} ${y + 18}" stroke="#fff" stroke-width="3"/>` +
  `<path d="M${x} ${y - 20}C${x + 10} ${y - 8} ${x + 6} ${y} ${x} ${y}C${x - 6} ${y} ${x - 10} ${y - 8} ${x} ${y - 20}Z" fill="${c.ochre}"/><path d="M${x} ${y - 11}C${x + 5} ${y - 5} ${x + 3} ${y - 1} ${x} ${y - 1}C${x - 3} ${y - 1} ${x - 5} ${y - 5} ${x} ${y - 11}Z" fill="#fff6d8"/>`;
const icing = (x, y, width, fill) => `<path d="M${x} ${y}H${x + width}V${y + 14}${times(width / 24, (i) => `q-4 ${14 + (i % 2) * 8} -12 ${10}t-12 -10`).join('')}Z" fill="${fill}"/>`;
const tier = (x, y, width, height, fill, top) => `<rect x="${x}" y="${y}" width="${width}" height="${height}" rx="8" fill="${fill}"/>` +
  `<rect x="${x}" y="${y + height - 14}" width="${width}" height="6" fill="${darker(fill)}" opacity=".25"/>${icing(x, y, width, top)}`;

function taart() {
  const free = (x, y) => x > 30 && x < 410 && y > 96 && y < 610;
  return sheet(440, 640, '#fdf1dc') + '<ellipse cx="220" cy="350" rx="250" ry="290" fill="#fff9ec"/>' + confetti(23, 170, 440, 640, warm, free) +
    bunting(-12, 10, 225, 22, 24, 6, warm, 40) + bunting(215, 22, 452, 10, 24, 6, [...warm].reverse(), 40) +
    script(220, 150, 62, c.terracotta, 'Hartelijk') + script(220, 206, 58, c.terracotta, 'gefeliciteerd!') +
    sprig([[206, 232], [160, 240], [112, 226]], 7, 17, c.sage) + sprig([[234, 232], [280, 240], [328, 226]], 7, 17, c.sage) + heart(220, 238, 0.8, c.terracotta) +
    [172, 204, 236, 268].map((x, i) => candle(x, 274, warm[(i + 1) % 5])).join('') +
    tier(136, 308, 168, 58, '#f7d795', c.terracotta) + tier(100, 362, 240, 70, c.terracotta, c.blush) +
    times(6, (i) => `<circle cx="${124 + i * 38.4}" cy="410" r="5.5" fill="${lighter(c.ochre)}"/>`).join('') + times(4, (i) => heart(166 + i * 36, 351, 0.5, c.plum)).join('') +
    `<ellipse cx="220" cy="436" rx="150" ry="10" fill="${c.blue}"/><ellipse cx="220" cy="433" rx="150" ry="9" fill="${lighter(c.blue)}"/><path d="M180 440H260L250 462H190Z" fill="${c.blue}"/><ellipse cx="220" cy="463" rx="52" ry="6" fill="${c.blue}"/>` +
    [510, 548, 586].map((y) => dotted(74, y, 366)).join('');
}

function uitnodiging() {
  const spray = sprig([[0, 0], [70, -30], [150, -22]], 10, 28, c.sage) + sprig([[0, 0], [40, 60], [30, 142]], 10, 28, c.sage) + sprig([[4, 6], [60, 30], [104, 26]], 6, 24, c.green) +
    flower(22, 14, 34, c.plum, 8) + flower(70, -2, 21, c.ochre, 7, c.terracotta) + flower(26, 66, 23, c.blush, 7);
  const rows = [['Wie?', 222], ['Wanneer?', 262], ['Hoe laat?', 302], ['Waar?', 342]];
  return sheet(640, 440, c.paper) + `<rect x="16" y="16" width="608" height="408" rx="12" fill="#fffdf7" stroke="${c.sage}" stroke-width="3"/><rect x="23" y="23" width="594" height="394" rx="8" fill="none" stroke="${c.ochre}"/>` +
    `<g transform="translate(34 46)">${spray}</g><g transform="translate(606 394) rotate(180)">${spray}</g>` +
    script(330, 122, 84, c.plum, 'Uitnodiging') + small(330, 158, 'Kom je ook? Wij vieren feest!', 'middle', 18) +
    `<path d="M200 178H310M350 178H460" stroke="${c.ochre}" stroke-width="1.4"/>` + heart(330, 182, 0.6, c.terracotta) +
    rows.map(([word, y]) => small(150, y, word, 'start', 19) + dotted(244, y, 500)).join('') +
    script(320, 396, 32, c.terracotta, 'Tot dan!');
}

/** In the order of their numbers: size and drawing. */
export const templates = [
  [upright, taart()], [lying, uitnodiging()],
];
