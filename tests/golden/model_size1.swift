import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 100, height: 50)

  // Nested Groups and Shapes

  // SVG
  struct Group2: View {

    static let intrinsicSize = CGSize(width: 7, height: 50)

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          EmptyView() // Group w/o content
            .frame(width: 7, height: 50,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 7,
                         y: proxy.size.height / 50)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        EmptyView() // Group w/o content
          .frame(width: 7, height: 50)
      }
    }
  }

  // SVG
  struct Group3: View {

    static let intrinsicSize = CGSize(width: 100, height: 7)

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          EmptyView() // Group w/o content
            .frame(width: 100, height: 7,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 100,
                         y: proxy.size.height / 7)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        EmptyView() // Group w/o content
          .frame(width: 100, height: 7)
      }
    }
  }

  // SVG
  struct Group4: View {

    static let intrinsicSize = CGSize(width: 100, height: 50)

    // Nested Groups and Shapes

    struct Reactangle1: View {

      static let intrinsicSize = CGSize(width: 1, height: 1)

      var body: some View {
        Rectangle()
          .fill(Color.black)
      }
    }

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          Reactangle1()
            .frame(width: 1, height: 1, alignment: .topLeading)
            .frame(width: 100, height: 50,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 100,
                         y: proxy.size.height / 50)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        Reactangle1()
          .frame(width: 1, height: 1, alignment: .topLeading)
          .frame(width: 100, height: 50)
      }
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Group2()
            .resizable()
            .frame(width: 7, height: 50, alignment: .topLeading)
          Group3()
            .resizable()
            .frame(width: 100, height: 7, alignment: .topLeading)
          Group4()
            .resizable()
            .frame(width: 100, height: 50, alignment: .topLeading)
        }
        .frame(width: 100, height: 50,
               alignment: .topLeading)
        .scaleEffect(x: proxy.size.width  / 100,
                     y: proxy.size.height / 50)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Group2()
          .resizable()
          .frame(width: 7, height: 50, alignment: .topLeading)
        Group3()
          .resizable()
          .frame(width: 100, height: 7, alignment: .topLeading)
        Group4()
          .resizable()
          .frame(width: 100, height: 50, alignment: .topLeading)
      }
      .frame(width: 100, height: 50)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : 2 * Group1.intrinsicSize.width,
               height : 2 * Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 100.0x50.0").padding(.bottom)
    }
  }
}
